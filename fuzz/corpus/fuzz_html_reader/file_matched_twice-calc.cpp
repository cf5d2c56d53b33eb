/** compute Adds one
*/
CALCUL_INT compute(int n)
