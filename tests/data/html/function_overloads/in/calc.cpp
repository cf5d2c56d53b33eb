/** compute Adds one
Works on integers.
*/
CALCUL_INT compute(int n)
/** compute Doubles a real
Works on reals; see compute.
*/
CALCUL_REAL compute(double x)
