// Generated file : do not edit by hand
#ifndef _rcwide_h_
#define _rcwide_h_


#define CallBar_IDR_MAINFRAME() \
if (code==40001) { mnuEXIT() ; return(1) ; };\




#define Menubar_IDR_MAINFRAME \
virtual void mnuEXIT() 


/*
IDD_SEARCH()
*/
class rcIDD_SEARCH : public Dialog
{
  public :
    Edit FILTER ;
    ListView RESULTS ;
    Control OK ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdFILTER(int notify) ;
    virtual int cmdRESULTS(NMHDR *ndr) ;
    virtual int cmdOK(int notify) ;
    virtual int mnuEXIT() ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

/*
IDD_ABOUT()
*/
class rcIDD_ABOUT : public Dialog
{
  public :

#endif
