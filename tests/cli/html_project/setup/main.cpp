CALCUL_INT ignored(void)
