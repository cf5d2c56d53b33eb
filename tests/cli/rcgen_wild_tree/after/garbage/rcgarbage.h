// Generated file : do not edit by hand
#ifndef _rcgarbage_h_
#define _rcgarbage_h_



/*
JUNK()
*/
class rcJUNK : public Dialog
{
  public :
  public :
    void rcInit() ;
    char *Name() ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

#endif
