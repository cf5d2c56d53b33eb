// Generated file : do not edit by hand
#ifndef _rc_h_
#define _rc_h_



/*
MAIN()
*/
class rcMAIN : public Dialog
{
  public :
    Control OK ;
    TabControl TAB ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdOK(int notify) ;
    virtual int cmdTAB(NMHDR *ndr) ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

#endif
