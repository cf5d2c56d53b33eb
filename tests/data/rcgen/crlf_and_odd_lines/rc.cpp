// Generated file : do not edit by hand
#include "kesto.h"
#include "rc.h"
void rcODD::rcInit()
{
  A.Get(this, 1) ;
  B.Get(this, 2) ;
  C.Get(this, ) ;
}

char *rcODD::Name()
{
  return("ODD") ;
}

#pragma argsused
int rcODD::cmdA(int notify)
{
  return(0) ;
}

#pragma argsused
int rcODD::cmdB(int notify)
{
  return(0) ;
}

#pragma argsused
int rcODD::cmdC(int notify)
{
  return(0) ;
}

#pragma argsused
int rcODD::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 1 : return(cmdA(notify)) ;
    case 2 : return(cmdB(notify)) ;
    case  : return(cmdC(notify)) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcODD::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}

void rcOLD::rcInit()
{
  A.Get(this, 1) ;
}

char *rcOLD::Name()
{
  return("OLD") ;
}

#pragma argsused
int rcOLD::cmdA(int notify)
{
  return(0) ;
}

#pragma argsused
int rcOLD::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 1 : return(cmdA(notify)) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcOLD::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}


RCRCMAIN

