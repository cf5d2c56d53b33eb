/** ::Engine Runs with helper and SIZE
The Engine calls helper.
*/
class Engine {
};
/** helper Helps the Engine
helper is called by run; see SIZE.
*/
CALCUL_VOID helper(void)
/** #SIZE Size of an Engine
*/
#define SIZE 4
