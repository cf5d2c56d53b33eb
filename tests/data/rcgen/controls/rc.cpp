// Generated file : do not edit by hand
#include "kesto.h"
#include "rc.h"
void rcCONTROLS::rcInit()
{
  CHECK.Get(this, 102) ;
  PUSH.Get(this, 103) ;
  RADIO.Get(this, 104) ;
  3STATE.Get(this, 117) ;
  CM_GROUP.Get(this, 116) ;
  EDIT1.Get(this, 101) ;
  LIST.Get(this, 105) ;
  COMBO.Get(this, 106) ;
  LISTVIEW.Get(this, 107) ;
  STATUS.Get(this, 108) ;
  TOOLS.Get(this, 109) ;
  PROGRESS.Get(this, 110) ;
  TRACK.Get(this, 111) ;
  TREE.Get(this, 112) ;
  EDIT1.Get(this, 101) ;
  CANCEL.Get(this, IDCANCEL) ;
  HELP.Get(this, IDHELP) ;
}

char *rcCONTROLS::Name()
{
  return("CONTROLS") ;
}

#pragma argsused
int rcCONTROLS::cmdCHECK(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdPUSH(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdRADIO(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmd3STATE(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdCM_GROUP(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdEDIT1(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdLIST(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdCOMBO(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdLISTVIEW(NMHDR *hdr)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdSTATUS(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdTOOLS(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdPROGRESS(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdTRACK(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdTREE(NMHDR *hdr)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdEDIT1(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdCANCEL(int notify)
{
  End(0) ;
  return(0) ;
}

#pragma argsused
int rcCONTROLS::cmdHELP(int notify)
{
  return(0) ;
}

#pragma argsused
int rcCONTROLS::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 102 : return(cmdCHECK(notify)) ;
    case 103 : return(cmdPUSH(notify)) ;
    case 104 : return(cmdRADIO(notify)) ;
    case 117 : return(cmd3STATE(notify)) ;
    case 116 : return(cmdCM_GROUP(notify)) ;
    case 101 : return(cmdEDIT1(notify)) ;
    case 105 : return(cmdLIST(notify)) ;
    case 106 : return(cmdCOMBO(notify)) ;
    case 108 : return(cmdSTATUS(notify)) ;
    case 109 : return(cmdTOOLS(notify)) ;
    case 110 : return(cmdPROGRESS(notify)) ;
    case 111 : return(cmdTRACK(notify)) ;
    case 101 : return(cmdEDIT1(notify)) ;
    case IDCANCEL : return(cmdCANCEL(notify)) ;
    case IDHELP : return(cmdHELP(notify)) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcCONTROLS::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  case 107 : cmdLISTVIEW(hdr) ; return ;
  case 112 : cmdTREE(hdr) ; return ;
  }
  Dialog::wmNotify(hdr) ;
}


RCRCMAIN

