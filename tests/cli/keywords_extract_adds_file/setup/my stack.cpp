int Stack::push(int v)
{
}
int Stack::pop();
void *alloc(size_t n)