// Generated file : do not edit by hand
#ifndef _rcnested_h_
#define _rcnested_h_



/*
APP()
*/
class rcAPP : public Dialog
{
  public :
    ComboBox LOCAL ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdLOCAL(int notify) ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

#endif
