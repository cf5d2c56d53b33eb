/** ::Fenetre Une fenêtre à l'écran
Affiche le résultat~
*/
class Fenetre : public Base {
};
/** ouvrir Ouvre «la» Fenetre
*/
CALCUL_INT ouvrir(int état)
CALCUL_INT fermer(void)