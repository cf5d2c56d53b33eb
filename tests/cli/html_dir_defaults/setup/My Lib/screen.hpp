#define WIDTH 80
