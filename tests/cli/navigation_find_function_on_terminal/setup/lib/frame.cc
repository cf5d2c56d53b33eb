void Frame::Paint(HDC dc)
{
}
