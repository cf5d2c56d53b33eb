int hidden()
{
}
