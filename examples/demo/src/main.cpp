#include <stdio.h>
#include "parser.h"

static int usage(const char *name)
{
    fprintf(stderr, "usage: %s \"3 4 +\"\n", name);
    return 2;
}

int main(int argc, char **argv)
{
    Stack stack;
    Parser parser(stack);
    int result;
    if (argc != 2)
        return usage(argv[0]);
    if (!parser.compute(argv[1], &result))
    {
        fprintf(stderr, "cannot compute %s\n", argv[1]);
        return 1;
    }
    printf("%d\n", result);
    return 0;
}
