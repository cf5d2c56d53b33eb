class Foo;
#define HIDDEN_BY_FOO 1
CALCUL_INT hidden(int n)
    }
} // end
#define VISIBLE 2
