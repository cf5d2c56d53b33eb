// Generated file : do not edit by hand
#include "kesto.h"
#include "rcgarbage.h"
void rcJUNK::rcInit()
{
}

char *rcJUNK::Name()
{
  return("JUNK") ;
}

#pragma argsused
int rcJUNK::wmCommand(int id, int notify)
{
  switch (id)
  {
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcJUNK::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}

