/** run Starts
*/
CALCUL_INT run(void)
