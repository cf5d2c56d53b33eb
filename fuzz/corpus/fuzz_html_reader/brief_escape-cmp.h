/** less True when a < b
*/
CALCUL_BOOL less(int a, int b)
