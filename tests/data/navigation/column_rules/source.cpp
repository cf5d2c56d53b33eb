#include <windows.h>
#include "frame.h" // was <oldframe.h>
// #include "retired.h"
#include <>
#include ""
#include "sub\dir\my header.h"
#include "unclosed.h
int main (void)
{
  int f(void)
  return 0;
}
int declared(void);
int commented(void) // done; really
// int hidden()
label: (x)
#define MAX(a, b) ((a) > (b) ? (a) : (b))
while (x)
void Outer::Inner::Run()
::Global(void)
Foo& Foo::operator=(const Foo&)
char *Name(int)
CWin::CWin(HWND h)
CWin::~CWin()
int twoBlanks  (void)
(void) startsWithParen
void Gréter(void)
été f(void)
static int * * Stars(void)
Frame::Paint(HDC dc) {