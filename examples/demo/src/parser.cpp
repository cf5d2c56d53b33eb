#include <ctype.h>
#include <stdlib.h>
#include "parser.h"

Parser::Parser(Stack &s) : stack(s)
{
}

int Parser::apply(char op)
{
    int a, b;
    if (!stack.pop(&b) || !stack.pop(&a))
        return 0;
    switch (op)
    {
    case '+': return stack.push(a + b);
    case '-': return stack.push(a - b);
    case '*': return stack.push(a * b);
    case '/': return b != 0 && stack.push(a / b);
    }
    return 0;
}

int Parser::compute(const char *line, int *result)
{
    while (*line)
    {
        if (isdigit((unsigned char)*line))
        {
            char *end;
            if (!stack.push((int)strtol(line, &end, 10)))
                return 0;
            line = end;
        }
        else if (*line == ' ')
            line++;
        else if (!apply(*line++))
            return 0;
    }
    return stack.size() == 1 && stack.pop(result);
}
