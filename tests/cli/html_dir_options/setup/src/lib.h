#define LIB_VERSION 3
