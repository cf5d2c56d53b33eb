// Generated file : do not edit by hand
#ifndef _rc_h_
#define _rc_h_


#define CallBar_APPMENU() \
if (code==1001) { mnuEXIT() ; return(1) ; };\




#define Menubar_APPMENU \
virtual void mnuEXIT() 


/*
IDD_WIDE()
*/
class rcIDD_WIDE : public Dialog
{
  public :
    Edit NAME ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdNAME(int notify) ;
    virtual int mnuEXIT() ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

#endif
