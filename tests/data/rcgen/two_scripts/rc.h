// Generated file : do not edit by hand
#ifndef _rc_h_
#define _rc_h_


#define CallBar_AMENU() \
if (code==1) { mnuA() ; return(1) ; };\




#define Menubar_AMENU \
virtual void mnuA() 



#define CallBar_BMENU() \
if (code==2) { mnuB() ; return(1) ; };\




#define Menubar_BMENU \
virtual void mnuB() 


#endif
