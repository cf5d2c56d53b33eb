int main(int argc, char** argv)
{
  return helper();
}
