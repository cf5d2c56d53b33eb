// Generated file : do not edit by hand
#include "kesto.h"
#include "rcwide.h"
void rcIDD_SEARCH::rcInit()
{
  FILTER.Get(this, 1001) ;
  RESULTS.Get(this, 1002) ;
  OK.Get(this, IDOK) ;
}

char *rcIDD_SEARCH::Name()
{
  return("IDD_SEARCH") ;
}

#pragma argsused
int rcIDD_SEARCH::cmdFILTER(int notify)
{
  return(0) ;
}

#pragma argsused
int rcIDD_SEARCH::cmdRESULTS(NMHDR *hdr)
{
  return(0) ;
}

#pragma argsused
int rcIDD_SEARCH::cmdOK(int notify)
{
  End(1) ;
  return(0) ;
}

int rcIDD_SEARCH::mnuEXIT()
{
  return(0) ;
}

#pragma argsused
int rcIDD_SEARCH::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 1001 : return(cmdFILTER(notify)) ;
    case IDOK : return(cmdOK(notify)) ;
    case 40001 : return(mnuEXIT()) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcIDD_SEARCH::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  case 1002 : cmdRESULTS(hdr) ; return ;
  }
  Dialog::wmNotify(hdr) ;
}

