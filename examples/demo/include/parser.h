#ifndef PARSER_H
#define PARSER_H

#include "stack.h"

/** ::Parser Reads the source
    Reads a line of reverse Polish notation and computes it on a Stack.
*/
class Parser
{
public:
    Parser(Stack &stack);
    int compute(const char *line, int *result);
private:
    int apply(char op);
    Stack &stack;
};

#endif
