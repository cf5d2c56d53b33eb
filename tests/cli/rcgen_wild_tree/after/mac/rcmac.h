// Generated file : do not edit by hand
#ifndef _rcmac_h_
#define _rcmac_h_



/*
MAC()
*/
class rcMAC : public Dialog
{
  public :
    Edit A ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdA(int notify) ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

#endif
