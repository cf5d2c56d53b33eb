void Doc::Paint(void)
