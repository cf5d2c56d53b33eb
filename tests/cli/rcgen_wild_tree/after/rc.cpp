// Generated file : do not edit by hand
#include "kesto.h"
#include "rc.h"
void rcMAIN::rcInit()
{
  TREE.Get(this, 9) ;
}

char *rcMAIN::Name()
{
  return("MAIN") ;
}

#pragma argsused
int rcMAIN::cmdTREE(NMHDR *hdr)
{
  return(0) ;
}

#pragma argsused
int rcMAIN::wmCommand(int id, int notify)
{
  switch (id)
  {
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcMAIN::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  case 9 : cmdTREE(hdr) ; return ;
  }
  Dialog::wmNotify(hdr) ;
}


RCRCMAIN

