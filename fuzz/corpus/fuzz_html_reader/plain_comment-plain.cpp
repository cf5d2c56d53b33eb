/* An old block
class Ghost {
CALCUL_INT ghost(int n)
void Ghost::walk(int step)
#define GHOST 1
/** shown Read even inside a plain comment
Still documented.
*/
CALCUL_INT shown(int n)
*/
/* one line */
CALCUL_INT after(int n)
