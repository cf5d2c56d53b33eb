#include "stack.h"

void Stack::push(int v)
{
}

int Stack::operator == (const Stack& other) const
{
  return 1;
}

static int helper(void)
{
  return 0;
}