// Generated file : do not edit by hand
#ifndef _rc_h_
#define _rc_h_


#define CallBar_MAINMENU() \
if (code==301) { mnuOPEN() ; return(1) ; };\
if (code==302) { mnuSAVE() ; return(1) ; };\
if (code==303) { mnuQUIT() ; return(1) ; };\
if (code==310) { mnuCM_ABOUT() ; return(1) ; };\


#define CallBar_EDITMENU() \
if (code==401) { mnuCOPY() ; return(1) ; };\
if (code==402) { mnuPASTE() ; return(1) ; };\




#define Menubar_MAINMENU \
virtual void mnuOPEN() ;\
virtual void mnuSAVE() ;\
virtual void mnuQUIT() ;\
virtual void mnuCM_ABOUT() ;\


#define Menubar_EDITMENU \
virtual void mnuCOPY() ;\
virtual void mnuPASTE() 


/*
LISTER()
*/
class rcLISTER : public Dialog
{
  public :
    List LIST ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdLIST(int notify) ;
    virtual int mnuCOPY() ;
    virtual int mnuPASTE() ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

/*
PLAIN()
*/
class rcPLAIN : public Dialog
{
  public :
    List LIST ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdLIST(int notify) ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

#endif
