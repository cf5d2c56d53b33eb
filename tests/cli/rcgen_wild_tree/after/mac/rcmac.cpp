// Generated file : do not edit by hand
#include "kesto.h"
#include "rcmac.h"
void rcMAC::rcInit()
{
  A.Get(this, 1) ;
}

char *rcMAC::Name()
{
  return("MAC") ;
}

#pragma argsused
int rcMAC::cmdA(int notify)
{
  return(0) ;
}

#pragma argsused
int rcMAC::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 1 : return(cmdA(notify)) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcMAC::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}

