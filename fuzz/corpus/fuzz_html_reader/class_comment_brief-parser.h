/** ::Parser Reads the source
Turns the text of a Token stream into a tree.
*/
class Parser {
public:
    virtual int parse(const char *text);
};

/** ::Token - a word of the source
*/
class Token
{
};
