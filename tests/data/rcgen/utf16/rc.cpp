// Generated file : do not edit by hand
#include "kesto.h"
#include "rc.h"
void rcIDD_WIDE::rcInit()
{
  NAME.Get(this, 1000) ;
}

char *rcIDD_WIDE::Name()
{
  return("IDD_WIDE") ;
}

#pragma argsused
int rcIDD_WIDE::cmdNAME(int notify)
{
  return(0) ;
}

int rcIDD_WIDE::mnuEXIT()
{
  return(0) ;
}

#pragma argsused
int rcIDD_WIDE::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 1000 : return(cmdNAME(notify)) ;
    case 1001 : return(mnuEXIT()) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcIDD_WIDE::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}


RCRCMAIN

