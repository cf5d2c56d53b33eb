/** add Adds two numbers
See §a and §b.
*/
CALCUL_INT add(int a, int b)
