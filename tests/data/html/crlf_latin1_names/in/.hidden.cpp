CALCUL_INT hidden(void)
