#include <QApplication>

#include <gtest/gtest.h>

namespace {

QtMessageHandler anterior = nullptr;

// The offscreen platform says, every time a page is brought to the front, that it cannot
// raise windows; that says nothing about the program.
void FiltrarMensagens(QtMsgType tipo, const QMessageLogContext& contexto, const QString& texto)
{
    if (texto.contains(QLatin1String("does not support raise()")) ||
        texto.contains(QLatin1String("does not support activateWindow()")) ||
        texto.contains(QLatin1String("does not support propagateSizeHints()")) ||
        texto.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR")))
        return;
    anterior(tipo, contexto, texto);
}

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    anterior = qInstallMessageHandler(FiltrarMensagens);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
