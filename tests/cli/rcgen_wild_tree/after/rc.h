// Generated file : do not edit by hand
#ifndef _rc_h_
#define _rc_h_



/*
MAIN()
*/
class rcMAIN : public Dialog
{
  public :
    TreeView TREE ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdTREE(NMHDR *ndr) ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

/*
OPEN()
*/
class rcOPEN : public Dialog
{
  public :



#endif
