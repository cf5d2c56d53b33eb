#include "stack.h"

/** Stack::Stack Makes an empty stack */
Stack::Stack()
{
    count = 0;
}

/** Stack::push Pushes a value~
    Returns 0 when the stack is full.
*/
int Stack::push(int value)
{
    if (count == STACK_MAX)
        return 0;
    items[count++] = value;
    return 1;
}

/** Stack::pop Pops the top value into value */
int Stack::pop(int *value)
{
    if (count == 0)
        return 0;
    *value = items[--count];
    return 1;
}

int Stack::size() const
{
    return count;
}
