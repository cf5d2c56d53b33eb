#define IGNORED 1
