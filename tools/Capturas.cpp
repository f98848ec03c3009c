// Pictures of the program made by the program itself, on the offscreen platform:
//   lumerina_capturas docs            the main page, the Mandelbrot page after a drawing,
//                                     a comments page, the save dialog, the IFS page after
//                                     the fern, the L-systems page after a Koch island and
//                                     the attractors page after a Lorenz drawing
//   lumerina_capturas paginas PASTA   every information page, one PNG each
//   lumerina_capturas lsistemas PASTA the L-systems page after each of its sixteen examples
//   lumerina_capturas ifs PASTA       every system of the IFS page, one picture each
// `make capturas` runs them all.

#include "app/Aplicacao.h"
#include "app/PaginaInformacao.h"
#include "app/Paginas.h"
#include "frame/ControloImagem.h"
#include "frame/Plataforma.h"
#include "geometric/PaginaLSistemas.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QWidget>

#include <cstdio>

namespace {

bool Guardar(QWidget* pagina, const QString& ficheiro)
{
    const bool feito = pagina->grab().save(ficheiro);
    std::printf("%s %s\n", feito ? "escrito" : "FALHOU", qPrintable(ficheiro));
    return feito;
}

int Documentacao(const QString& pasta)
{
    QDir().mkpath(pasta);
    QWidget* inicial = AbrirLumerina();
    bool ok = Guardar(inicial, pasta + "/pagina-inicial.png");
    QWidget* mandel = lumerina::Pagina(lumerina::Form::Mandelbrot);
    mandel->show();
    mandel->findChild<QRadioButton*>("CorFogo")->setChecked(true);
    mandel->findChild<QLineEdit*>("MaxIterações")->setText("256");
    mandel->findChild<QPushButton*>("DesenharMandelbrot")->click();
    ok = Guardar(mandel, pasta + "/pagina-mandelbrot.png") && ok;
    // The attractors page after a Lorenz drawing (its sixth set, B = 28), kept for copying.
    QWidget* atractores = lumerina::Pagina(lumerina::Form::Atractores);
    atractores->show();
    atractores->findChild<QAbstractButton*>("Lorenz")->click();
    atractores->findChild<QAbstractButton*>("CopiarLorenz")->click();
    atractores->findChild<QSpinBox*>("UpDown1")->setValue(6);
    atractores->findChild<QPushButton*>("Desenhar")->click();
    ok = Guardar(atractores, pasta + "/pagina-atractores.png") && ok;
    atractores->hide();
    // "Comentários" from the Mandelbrot page opens at its first page on the set.
    mandel->findChild<QAction*>("Comentários")->trigger();
    ok = Guardar(lumerina::Pagina(lumerina::Form::Comentarios), pasta + "/pagina-comentarios.png") && ok;
    // Guardar's dialog, in European Portuguese like the rest of the program.
    const auto dialogo = lumerina::CriarDialogoGuardar(mandel, QStringLiteral("Mapa de bits (*.bmp)|*.bmp"));
    dialogo->setOption(QFileDialog::DontUseNativeDialog);
    dialogo->setDirectory(QDir::tempPath());
    dialogo->selectFile(QStringLiteral("mandelbrot.bmp"));
    dialogo->resize(640, 400);
    dialogo->show();
    ok = Guardar(dialogo.get(), pasta + "/dialogo-guardar.png") && ok;
    QWidget* ifs = lumerina::Pagina(lumerina::Form::IFS);
    ifs->show();
    ifs->findChild<QPushButton*>("FetoBarnsley")->click();
    ok = Guardar(ifs, pasta + "/pagina-ifs.png") && ok;
    // The quadratic Koch island, example "12".
    QWidget* lsistemas = lumerina::Pagina(lumerina::Form::LSistemas);
    lsistemas->show();
    lsistemas->findChild<QRadioButton*>("Option12")->click();
    lsistemas->findChild<QPushButton*>("Desenhar")->click();
    ok = Guardar(lsistemas, pasta + "/pagina-lsistemas.png") && ok;
    return ok ? 0 : 1;
}

int ExemplosLSistemas(const QString& pasta)
{
    QDir().mkpath(pasta);
    QWidget* pagina = lumerina::Pagina(lumerina::Form::LSistemas);
    pagina->show();
    bool ok = true;
    for (const auto& e : lumerina::PaginaLSistemas::kExemplos) {
        pagina->findChild<QRadioButton*>(e.botao)->click();
        pagina->findChild<QPushButton*>("Desenhar")->click();
        ok = Guardar(pagina, QStringLiteral("%1/exemplo-%2.png").arg(pasta, e.legenda)) && ok;
    }
    return ok ? 0 : 1;
}

int Paginas(const QString& pasta)
{
    QDir().mkpath(pasta);
    bool ok = true;
    for (const lumerina::LivroInformacao* livro :
         {&lumerina::LivroInstrucoes(), &lumerina::LivroComentarios(), &lumerina::LivroSugestoes()}) {
        for (int k = 1; k <= livro->paginas; ++k) {
            qreal pontos = 0;
            const QImage imagem = lumerina::DesenharPaginaInformacao(
                lumerina::TextoPaginaInformacao(*livro, k),
                {lumerina::PaginaInformacao::kLarguraPagina, lumerina::PaginaInformacao::kAlturaPagina},
                1.0, &pontos);
            if (pontos < 11.5) {
                std::printf("%s %d: %s\n", livro->pasta, k,
                            pontos == 0 ? "NÃO CABE" : qPrintable(QStringLiteral("letra %1").arg(pontos)));
                ok = ok && pontos > 0;
            }
            const QString nome = QStringLiteral("%1/%2-%3.png")
                                     .arg(pasta, QString::fromUtf8(livro->pasta))
                                     .arg(k, 2, 10, QLatin1Char('0'));
            ok = imagem.save(nome) && ok;
        }
    }
    std::printf("%s\n", ok ? "páginas escritas" : "FALHOU");
    return ok ? 0 : 1;
}

// Each example button of the IFS page on a cleared picture, 300 000 steps, in the order of
// the buttons: NN-Nome.png.
int SistemasIFS(const QString& pasta)
{
    QDir().mkpath(pasta);
    AbrirLumerina();
    QWidget* pagina = lumerina::Pagina(lumerina::Form::IFS);
    pagina->show();
    pagina->findChild<QLineEdit*>("NumIteraçõesIFS")->setText("300000");
    auto* apagar = pagina->findChild<QPushButton*>("ApagarGráfico");
    auto* imagem = pagina->findChild<lumerina::ControloImagem*>("Picture1");
    bool ok = true;
    int n = 0;
    for (const char* quadro : {"Frame1", "Frame3"}) {
        for (QPushButton* b : pagina->findChild<QGroupBox*>(quadro)->findChildren<QPushButton*>()) {
            if (b->objectName() == "Command1" || b->objectName() == "Command7")
                continue;
            apagar->click();
            b->click();
            const QString nome =
                QStringLiteral("%1/%2-%3.png").arg(pasta).arg(++n, 2, 10, QLatin1Char('0')).arg(b->objectName());
            ok = imagem->Imagem().save(nome) && ok;
        }
    }
    std::printf("%d sistemas %s\n", n, ok ? "escritos" : "FALHOU");
    return ok ? 0 : 1;
}

}  // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    int codigo = 2;
    if (args.size() >= 3 && args[1] == "docs")
        codigo = Documentacao(args[2]);
    else if (args.size() >= 3 && args[1] == "paginas")
        codigo = Paginas(args[2]);
    else if (args.size() >= 3 && args[1] == "lsistemas")
        codigo = ExemplosLSistemas(args[2]);
    else if (args.size() >= 3 && args[1] == "ifs")
        codigo = SistemasIFS(args[2]);
    else
        std::fprintf(stderr, "uso: lumerina_capturas docs PASTA | paginas PASTA | lsistemas PASTA | ifs PASTA\n");
    lumerina::FecharLumerina();
    return codigo;
}
