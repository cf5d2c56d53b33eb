CALCUL_INT other(int n)
