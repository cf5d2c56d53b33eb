// Generated file : do not edit by hand
#ifndef _rclong lines_h_
#define _rclong lines_h_



/*
VALUES()
*/
class rcVALUES : public Dialog
{
  public :
    TrackBar VALUE ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdVALUE(int notify) ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

#endif
