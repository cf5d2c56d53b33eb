// Generated file : do not edit by hand
#include "kesto.h"
#include "rc.h"
void rcMAIN::rcInit()
{
  NAME.Get(this, 10) ;
}

char *rcMAIN::Name()
{
  return("MAIN") ;
}

#pragma argsused
int rcMAIN::cmdNAME(int notify)
{
  return(0) ;
}

#pragma argsused
int rcMAIN::wmCommand(int id, int notify)
{
  switch (id)
  {
    case 10 : return(cmdNAME(notify)) ;
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcMAIN::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}

void rcMAIN_10A3::rcInit()
{
}

char *rcMAIN_10A3::Name()
{
  return("MAIN_10A3") ;
}

#pragma argsused
int rcMAIN_10A3::wmCommand(int id, int notify)
{
  switch (id)
  {
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcMAIN_10A3::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}

void rcNAME_1::rcInit()
{
}

char *rcNAME_1::Name()
{
  return("NAME_1") ;
}

#pragma argsused
int rcNAME_1::wmCommand(int id, int notify)
{
  switch (id)
  {
  }
  return(Dialog::wmCommand(id, notify)) ;
}


#pragma argsused
void rcNAME_1::wmNotify(NMHDR *hdr)
{
  switch (hdr->idFrom)
  {
  }
  Dialog::wmNotify(hdr) ;
}


RCRCMAIN

