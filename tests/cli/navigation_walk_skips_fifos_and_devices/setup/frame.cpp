void Frame::Paint(int x)
{
  Paint(x - 1);
}
