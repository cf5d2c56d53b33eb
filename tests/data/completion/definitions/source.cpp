// A stack and its helpers.
#include "stack.h"

int Stack::push(int v)
{
  return store(v);
}
int Stack::pop()
{
  if (empty()) return 0;
}
void *alloc(size_t n);
void *alloc(size_t n)
{
}
char &Buffer::at(int i)
char **names(void)
int Stack::size() const
unsigned café(int x)
  indented(int x)
:label(x)
/* comment(x) */
(cast)x
Stack::Stack(int capacity)
int Stack::peek (int depth)
