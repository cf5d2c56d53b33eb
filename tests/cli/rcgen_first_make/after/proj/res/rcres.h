// Generated file : do not edit by hand
#ifndef _rcres_h_
#define _rcres_h_

#endif
