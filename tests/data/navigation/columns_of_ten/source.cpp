void f00(void)
{
}
void f01(void)
{
}
void f02(void)
{
}
void f03(void)
{
}
void f04(void)
{
}
void f05(void)
{
}
void f06(void)
{
}
void f07(void)
{
}
void f08(void)
{
}
void f09(void)
{
}
void f10(void)
{
}
void f11(void)
{
}
void f12(void)
{
}
void f13(void)
{
}
void f14(void)
{
}
void f15(void)
{
}
void f16(void)
{
}
void f17(void)
{
}
void f18(void)
{
}
void f19(void)
{
}
void f20(void)
{
}
void f21(void)
{
}
void f22(void)
{
}
void f23(void)
{
}
void f24(void)
{
}
