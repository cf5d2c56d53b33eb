// Generated file : do not edit by hand
#include "kesto.h"
#include "rcnested.h"
void rcAPP::rcInit()
{
  LOCAL.Get(this, 3) ;
}

char *rcAPP::Name()
{
  return("APP") ;
}

#pragma argsused
int rcAPP::cmdLOCAL(int notify)
{
  return(0) ;
}

#pragma argsused
int rcAPP::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 3 : return(cmdLOCAL(notify)) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcAPP::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}

