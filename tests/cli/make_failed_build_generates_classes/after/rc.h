// Generated file : do not edit by hand
#ifndef _rc_h_
#define _rc_h_

#endif
