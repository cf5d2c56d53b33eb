// Generated file : do not edit by hand
#ifndef _rc_h_
#define _rc_h_



/*
MAIN()
*/
class rcMAIN : public Dialog
{
  public :
    Edit NAME ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdNAME(int notify) ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

/*
MAIN_10A3()
*/
class rcMAIN_10A3 : public Dialog
{
  public :
  public :
    void rcInit() ;
    char *Name() ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

/*
NAME_1()
*/
class rcNAME_1 : public Dialog
{
  public :
  public :
    void rcInit() ;
    char *Name() ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

#endif
