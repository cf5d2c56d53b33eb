// Generated file : do not edit by hand
#ifndef _rc_h_
#define _rc_h_



/*
CONTROLS()
*/
class rcCONTROLS : public Dialog
{
  public :
    CheckBox CHECK ;
    Control PUSH ;
    Radio RADIO ;
    CheckBox 3STATE ;
    Control CM_GROUP ;
    Edit EDIT1 ;
    List LIST ;
    ComboBox COMBO ;
    ListView LISTVIEW ;
    StatusBar STATUS ;
    ToolBar TOOLS ;
    Progress PROGRESS ;
    TrackBar TRACK ;
    TreeView TREE ;
    Edit EDIT1 ;
    Control CANCEL ;
    Control HELP ;
  public :
    void rcInit() ;
    char *Name() ;
    virtual int cmdCHECK(int notify) ;
    virtual int cmdPUSH(int notify) ;
    virtual int cmdRADIO(int notify) ;
    virtual int cmd3STATE(int notify) ;
    virtual int cmdCM_GROUP(int notify) ;
    virtual int cmdEDIT1(int notify) ;
    virtual int cmdLIST(int notify) ;
    virtual int cmdCOMBO(int notify) ;
    virtual int cmdLISTVIEW(NMHDR *ndr) ;
    virtual int cmdSTATUS(int notify) ;
    virtual int cmdTOOLS(int notify) ;
    virtual int cmdPROGRESS(int notify) ;
    virtual int cmdTRACK(int notify) ;
    virtual int cmdTREE(NMHDR *ndr) ;
    virtual int cmdEDIT1(int notify) ;
    virtual int cmdCANCEL(int notify) ;
    virtual int cmdHELP(int notify) ;
    int wmCommand(int id, int notify) ;
    void wmNotify(NMHDR *hdr) ;
} ;

#endif
