int b;
