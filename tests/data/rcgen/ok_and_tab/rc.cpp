// Generated file : do not edit by hand
#include "kesto.h"
#include "rc.h"
void rcMAIN::rcInit()
{
  OK.Get(this, IDOK) ;
  TAB.Get(this, 200) ;
}

char *rcMAIN::Name()
{
  return("MAIN") ;
}

#pragma argsused
int rcMAIN::cmdOK(int notify)
{
  End(1) ;
  return(0) ;
}

#pragma argsused
int rcMAIN::cmdTAB(NMHDR *hdr)
{
  return(0) ;
}

#pragma argsused
int rcMAIN::wmCommand(int id, int notify)
{
  switch (id)
  {
    case IDOK : return(cmdOK(notify)) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcMAIN::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  case 200 : if (hdr->code==TCN_SELCHANGE) cmdTAB(hdr) ; return ;
  }
  Dialog::wmNotify(hdr) ;
}


RCRCMAIN

