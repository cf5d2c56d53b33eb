/** Stack::push
Pushes an integer.
*/
/** Stack::push
Pushes a text.
*/
void Stack::push(int value)
{
}
void Stack::push(char *text)
{
}
int Stack::size(void)
{
}
