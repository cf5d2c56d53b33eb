#include <windows.h>
#include "frame.h"
void Frame::Paint(HDC dc)
{
  Paint(dc);
}
int main (void)
{
  Frame f;
  f.Paint(0);
}
void View::Paint(void)
void Frame::Size(int)