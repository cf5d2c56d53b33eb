// Generated file : do not edit by hand
#ifndef _rcsrc_h_
#define _rcsrc_h_

#endif
