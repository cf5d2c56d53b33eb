#ifndef LIMITS_H
#define LIMITS_H
#define LIMITS_H2   
/** #MAX_ITEMS Largest number of items
*/
#define MAX_ITEMS 100
#define SWAP(a, b) \
    { int t = a; \
      a = b; b = t; }
int after_swap;
#endif
