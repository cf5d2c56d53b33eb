// Generated file : do not edit by hand
#ifndef _rc_h_
#define _rc_h_



/*
ODD()
*/
class rcODD : public Dialog
{
  public :
    Edit A ;
    Edit B ;
    Edit C ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdA(int notify) ;
    virtual int cmdB(int notify) ;
    virtual int cmdC(int notify) ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

/*
OLD()
*/
class rcOLD : public Dialog
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

/*
LAST()
*/
class rcLAST : public Dialog
{
  public :

#endif
