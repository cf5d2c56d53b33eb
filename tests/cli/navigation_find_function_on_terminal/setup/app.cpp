int main(void)
