// Generated file : do not edit by hand
#include "kesto.h"
#include "rc.h"
void rcLISTER::rcInit()
{
  LIST.Get(this, 500) ;
}

char *rcLISTER::Name()
{
  return("LISTER") ;
}

#pragma argsused
int rcLISTER::cmdLIST(int notify)
{
  return(0) ;
}

int rcLISTER::mnuCOPY()
{
  return(0) ;
}

int rcLISTER::mnuPASTE()
{
  return(0) ;
}

#pragma argsused
int rcLISTER::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 500 : return(cmdLIST(notify)) ;
    case 401 : return(mnuCOPY()) ;
    case 402 : return(mnuPASTE()) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcLISTER::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}

void rcPLAIN::rcInit()
{
  LIST.Get(this, 500) ;
}

char *rcPLAIN::Name()
{
  return("PLAIN") ;
}

#pragma argsused
int rcPLAIN::cmdLIST(int notify)
{
  return(0) ;
}

#pragma argsused
int rcPLAIN::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 500 : return(cmdLIST(notify)) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcPLAIN::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}


RCRCMAIN

