void Paint(int x)
{
    Paint(x - 1);  /* twice: Paint */
}

int PaintAll;
