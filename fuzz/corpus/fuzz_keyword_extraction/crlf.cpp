int Stack::push(int v)
{
}
int Buffer::at(int i)
int Stack::pop()
long tail(int x)