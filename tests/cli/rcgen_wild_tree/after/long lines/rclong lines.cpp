// Generated file : do not edit by hand
#include "kesto.h"
#include "rclong lines.h"
void rcVALUES::rcInit()
{
  VALUE.Get(this, 7) ;
}

char *rcVALUES::Name()
{
  return("VALUES") ;
}

#pragma argsused
int rcVALUES::cmdVALUE(int notify)
{
  return(0) ;
}

#pragma argsused
int rcVALUES::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 7 : return(cmdVALUE(notify)) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcVALUES::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}

