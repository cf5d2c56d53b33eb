CALCUL_INT skipped(void)
