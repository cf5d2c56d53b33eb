#ifndef STACK_H
#define STACK_H

#define STACK_MAX 64

/** ::Stack A fixed-size stack of integers
    Push and pop never allocate; Overflow and underflow are reported by the return value.
*/
class Stack
{
public:
    Stack();
    int push(int value);
    int pop(int *value);
    int size() const;
private:
    int items[STACK_MAX];
    int count;
};

#endif
