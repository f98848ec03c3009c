#include <QApplication>

#include "app/Aplicacao.h"

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    AbrirLumerina();
    return app.exec();
}
