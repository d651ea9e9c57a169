#include "Console.h"

int main()
{
    Tavelo::Console().write(QStringLiteral("a line\n"));
    return 0;
}
