// Compiled with the core library's include path only: it must fail, because the core
// never sees Qt.
#include <QString>

int main() { return QString().size(); }
