/** count Counts the items
// hidden
Returns the count~
Takes §list the list and §max the limit.
// also hidden
The result // is never negative // nor past max
§§int the count
*/
CALCUL_INT count(List *list, int max)
/** #LIMIT Largest §value, §§int "quoted" & <tagged>
Scans §n items~
*/
#define LIMIT 10
