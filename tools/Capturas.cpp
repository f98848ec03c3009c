// Pictures of the program made by the program itself, on the offscreen platform:
//   lumerina_capturas docs PASTA      the main page, the Mandelbrot page after a drawing,
//                                     a comments page, the save dialog, the IFS page after
//                                     the fern, the L-systems page after a Koch island,
//                                     the attractors page after a Lorenz drawing, the Julia,
//                                     relation and Newton pages, the chaos game, the
//                                     transformations page and the sequences page (a
//                                     construction and a solution)
//   lumerina_capturas paginas PASTA   every information page, one PNG each
//   lumerina_capturas lsistemas PASTA the L-systems page after each of its sixteen examples
//   lumerina_capturas ifs PASTA       every system of the IFS page, one picture each
//   lumerina_capturas julia PASTA     every named value of k of the Julia page, drawn, one
//                                     contact sheet per family
//   lumerina_capturas caos PASTA      the chaos game after Auto, every figure of the copy
//                                     machine at levels 1 to 6, the transformations page
//                                     with each example and each figure at levels 1 to 8
//   lumerina_capturas sucessoes PASTA the sequences page: every example's construction and
//                                     every sheet of its solution
//   lumerina_capturas orbitas-dimensao PASTA
//                                     the orbits page on each example of its instructions, and
//                                     every figure of the dimension page, measured
// `make capturas` runs them all.

#include "app/Aplicacao.h"
#include "app/PaginaInformacao.h"
#include "app/Paginas.h"
#include "complex/PaginaRelacao.h"
#include "dynamics/PaginaSucessoes.h"
#include "frame/ControloImagem.h"
#include "frame/Controlos.h"
#include "frame/Plataforma.h"
#include "geometric/PaginaLSistemas.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>
#include <QWidget>

#include <cmath>
#include <cstdio>

namespace {

bool Guardar(QWidget* pagina, const QString& ficheiro)
{
    const bool feito = pagina->grab().save(ficheiro);
    std::printf("%s %s\n", feito ? "escrito" : "FALHOU", qPrintable(ficheiro));
    return feito;
}

bool Orbita(const QString& ficheiro, const char* modo, const char* c, const char* d, const char* x0,
            int passos);
bool Dimensao(const QString& ficheiro, int figura);

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
    QWidget* julia = lumerina::Pagina(lumerina::Form::Julia);
    julia->show();
    julia->findChild<QPushButton*>("Desenhar")->click();
    ok = Guardar(julia, pasta + "/pagina-julia.png") && ok;
    // The relation page after a click on the Douady rabbit's c, both Julia sets drawn. Its
    // colours are black until chosen: these stand for a teacher's choice.
    auto* relacao = static_cast<lumerina::PaginaRelacao*>(lumerina::Pagina(lumerina::Form::Relacao));
    relacao->show();
    for (lumerina::SeletorCor* cor : relacao->findChildren<lumerina::SeletorCor*>()) {
        const QString botao = cor->BotaoEscolher()->objectName();
        cor->DefinirCor(botao == "Command8" || botao == "Command1" ? QColor(0, 0, 128)
                                                                   : QColor(255, 244, 200));
    }
    relacao->findChild<QPushButton*>("DesenharMandelbrot")->click();
    relacao->MarcarPonto(-0.123, 0.745);
    relacao->findChild<QPushButton*>("DesenharJuliaIteraçãoNormal")->click();
    relacao->findChild<QPushButton*>("DesenharJuliaIteraçãoInversa")->click();
    ok = Guardar(relacao, pasta + "/pagina-relacao.png") && ok;
    QWidget* newton = lumerina::Pagina(lumerina::Form::Newton);
    newton->show();
    newton->findChild<QPushButton*>("Newton")->click();
    ok = Guardar(newton, pasta + "/pagina-newton.png") && ok;
    newton->hide();
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
    QWidget* caos = lumerina::Pagina(lumerina::Form::JogoCaos);
    caos->show();
    caos->findChild<QPushButton*>("Automático")->click();
    ok = Guardar(caos, pasta + "/pagina-jogo-caos.png") && ok;
    QWidget* transformacoes = lumerina::Pagina(lumerina::Form::Transformacoes);
    transformacoes->show();
    transformacoes->findChild<QPushButton*>("ExemploSierpinski")->click();
    for (int k = 0; k < 4; ++k)
        transformacoes->findChild<QPushButton*>("AplicarNovamente")->click();
    ok = Guardar(transformacoes, pasta + "/pagina-transformacoes.png") && ok;
    lumerina::Pagina(lumerina::Form::Comentarios)->hide();
    // The sequences page: the Koch curve's construction, then the second sheet of its answer.
    mandel->findChild<QAction*>("IrSucessões")->trigger();
    QWidget* sucessoes = lumerina::Pagina(lumerina::Form::Sucessoes);
    sucessoes->findChild<QRadioButton*>("Option3")->click();
    ok = Guardar(sucessoes, pasta + "/pagina-sucessoes.png") && ok;
    sucessoes->findChild<QPushButton*>("VerSolução")->click();
    sucessoes->findChild<QToolButton*>("SetaD3")->click();
    ok = Guardar(sucessoes, pasta + "/pagina-sucessoes-solucao.png") && ok;
    // The orbit of 0 for c = -0.75 + 0.1i, near the boundary; box counting on a Sierpinski
    // triangle.
    ok = Orbita(pasta + "/pagina-orbitas.png", "ModoOrbita", "-0.75", "0.1", "0", 36) && ok;
    ok = Dimensao(pasta + "/pagina-dimensao.png", 3) && ok;
    return ok ? 0 : 1;
}

// Every example of the sequences page, and every sheet of its solution; a text set smaller
// than the information pages' type, or cut, is reported.
int Sucessoes(const QString& pasta)
{
    QDir().mkpath(pasta);
    bool ok = true;
    auto* pagina = static_cast<lumerina::PaginaSucessoes*>(lumerina::Pagina(lumerina::Form::Sucessoes));
    pagina->show();
    for (int k = 1; k <= 8; ++k) {
        const lumerina::TextosExemplo& textos = lumerina::Textos(k);
        std::vector<const char*> nomes{textos.construcao};
        nomes.insert(nomes.end(), textos.solucao.begin(), textos.solucao.end());
        for (const char* nome : nomes) {
            qreal pontos = 0;
            lumerina::DesenharPaginaInformacao(
                lumerina::TextoSucessao(nome),
                {lumerina::PaginaSucessoes::kLarguraTexto, lumerina::PaginaSucessoes::kAlturaTexto},
                1.0, &pontos);
            std::printf("%s: %s\n", nome,
                        pontos == 0 ? "NÃO CABE" : qPrintable(QStringLiteral("letra %1").arg(pontos)));
            ok = ok && pontos > 0;
        }
        pagina->EscolherExemplo(k);
        ok = Guardar(pagina, QStringLiteral("%1/exemplo%2.png").arg(pasta).arg(k)) && ok;
        pagina->VerSolucao();
        for (std::size_t folha = 0; folha < textos.solucao.size(); ++folha) {
            if (folha > 0)
                pagina->SolucaoSeguinte(k);
            ok = Guardar(pagina, QStringLiteral("%1/exemplo%2-solucao%3.png").arg(pasta).arg(k).arg(folha + 1)) && ok;
        }
    }
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

// The Julia page's named values, each drawn in its family, at a quarter of their size on one
// sheet per list (the inverse iteration shares the first list with the normal one).
int ExemplosJulia(const QString& pasta)
{
    QDir().mkpath(pasta);
    QWidget* julia = lumerina::Pagina(lumerina::Form::Julia);
    julia->show();
    const struct { const char* opcao; const char* lista; } familias[] = {
        {"IteraçãoNormal", "Combo1"}, {"IteraçãoInversa", "Combo1"}, {"KapaSenoZ", "Combo2"},
        {"KapaCosenoZ", "Combo3"},    {"KapaExpZ", "Combo4"},
    };
    bool ok = true;
    for (const auto& f : familias) {
        for (const char* coloracao : {"LinhasTipo2", "SemLinhas"}) {
            julia->findChild<QRadioButton*>(QString::fromUtf8(f.opcao))->click();
            julia->findChild<QRadioButton*>(coloracao)->click();
            auto* lista = julia->findChild<QComboBox*>(f.lista);
            const int lado = 157, porLinha = 6;
            QImage folha(porLinha * lado, ((lista->count() + porLinha - 1) / porLinha) * (lado + 14),
                         QImage::Format_RGB32);
            folha.fill(Qt::white);
            QPainter pintor(&folha);
            for (int k = 0; k < lista->count(); ++k) {
                emit lista->activated(k);
                julia->findChild<QPushButton*>("Desenhar")->click();
                const QImage imagem = julia->findChild<QWidget*>("Picture1")->grab().toImage();
                const QPoint canto((k % porLinha) * lado, (k / porLinha) * (lado + 14));
                pintor.drawImage(QRect(canto + QPoint(0, 14), QSize(lado - 2, lado - 2)), imagem);
                pintor.drawText(canto + QPoint(2, 11), lista->itemText(k));
            }
            pintor.end();
            const QString nome =
                QStringLiteral("%1/julia-%2-%3.png").arg(pasta, QString::fromUtf8(f.opcao), coloracao);
            ok = folha.save(nome) && ok;
            std::printf("escrito %s\n", qPrintable(nome));
        }
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

// The chaos game page: the game after Auto, and each figure of the copy machine drawn afresh
// and sent through 1 to 6 levels; then the transformations page with each example and each
// figure, levels 1 to 8.
int JogoCaos(const QString& pasta)
{
    QDir().mkpath(pasta);
    AbrirLumerina();
    bool ok = true;
    QWidget* caos = lumerina::Pagina(lumerina::Form::JogoCaos);
    caos->show();
    const auto premir = [](QWidget* pagina, const char* nome) {
        pagina->findChild<QPushButton*>(QString::fromUtf8(nome))->click();
    };
    premir(caos, "IniciarCaos");
    for (int k = 0; k < 12; ++k)
        premir(caos, "ContinuarCaos");
    ok = Guardar(caos, pasta + "/caos-continuar.png") && ok;
    premir(caos, "Automático");
    ok = Guardar(caos, pasta + "/caos-auto.png") && ok;
    struct Figura { const char* nome; const char* desenhar; const char* niveis[6]; };
    const Figura figuras[] = {
        {"letras", "DesenharNome", {"Command14", "Command13", "Command12", "Command11", "Command10", "Command9"}},
        {"circulo", "DesenharCírculo", {"Command3", "Command4", "Command5", "Command6", "Command7", "Command1"}},
        {"quadrado", "DesenharQuadrado", {"Command2", "Command8", "Command15", "Command16", "Command17", "Command18"}},
        {"utilizador", "DesenharUtilizador", {"Command19", "Command20", "Command21", "Command22", "Command23", "Command24"}},
    };
    auto* imagem = caos->findChild<lumerina::ControloImagem*>("Picture1");
    for (const Figura& f : figuras) {
        for (int nivel = 0; nivel <= 6; ++nivel) {
            premir(caos, f.desenhar);
            if (f.desenhar == figuras[3].desenhar) {
                // A spiral drawn by hand, from the centre outwards.
                emit imagem->RatoPremido(Qt::LeftButton, 0, 0);
                for (int k = 1; k < 600; ++k)
                    emit imagem->RatoMovido(Qt::LeftButton, 0.0013 * k * std::cos(k * 0.05),
                                            0.0013 * k * std::sin(k * 0.05));
            }
            if (nivel > 0)
                premir(caos, f.niveis[nivel - 1]);
            ok = Guardar(caos, QStringLiteral("%1/copiadora-%2-%3.png").arg(pasta, f.nome).arg(nivel)) && ok;
        }
    }

    QWidget* pagina = lumerina::Pagina(lumerina::Form::Transformacoes);
    pagina->show();
    struct Exemplo { const char* nome; const char* botao; };
    const Exemplo exemplos[] = {{"espiral", "ExemploEspiral"}, {"sierpinski", "ExemploSierpinski"}};
    for (const char* figura : {"FiguraF", "FiguraQuadrado", "FiguraTriangulo"}) {
        pagina->findChild<QRadioButton*>(QString::fromUtf8(figura))->setChecked(true);
        for (const Exemplo& e : exemplos) {
            premir(pagina, e.botao);
            for (int nivel = 1; nivel <= 8; ++nivel) {
                if (nivel > 1)
                    premir(pagina, "AplicarNovamente");
                ok = Guardar(pagina, QStringLiteral("%1/transformacoes-%2-%3-%4.png")
                                         .arg(pasta, figura, e.nome).arg(nivel)) && ok;
            }
        }
    }
    // Built maps: a rotation of 30 degrees with a shear, from the builder.
    auto* tipo = pagina->findChild<QComboBox*>("TipoConstrução");
    tipo->setCurrentIndex(1);
    pagina->findChild<QLineEdit*>("Parâmetro1")->setText("30");
    premir(pagina, "Construir1");
    tipo->setCurrentIndex(4);
    pagina->findChild<QLineEdit*>("Parâmetro1")->setText("0.5");
    premir(pagina, "Construir2");
    pagina->findChild<QCheckBox*>("Usar3")->setChecked(false);
    premir(pagina, "DesenharFigura");
    ok = Guardar(pagina, pasta + "/transformacoes-construidas.png") && ok;
    std::printf("jogo do caos e transformações %s\n", ok ? "escritos" : "FALHOU");
    return ok ? 0 : 1;
}

// The orbits page in a mode, with c and x0 typed, after `passos` steps.
bool Orbita(const QString& ficheiro, const char* modo, const char* c, const char* d, const char* x0,
            int passos)
{
    QWidget* pagina = lumerina::Pagina(lumerina::Form::Orbitas);
    pagina->show();
    pagina->findChild<QRadioButton*>(QString::fromUtf8(modo))->setChecked(true);
    pagina->findChild<QLineEdit*>("ValorDeC")->setText(c);
    pagina->findChild<QLineEdit*>("ValorDeD")->setText(d);
    pagina->findChild<QLineEdit*>("ValorX0")->setText(x0);
    auto* passo = pagina->findChild<QPushButton*>("Passo");
    for (int k = 0; k < passos; ++k)
        passo->click();
    const bool ok = Guardar(pagina, ficheiro);
    pagina->hide();
    return ok;
}

// The dimension page: figure k drawn, then measured by box counting.
bool Dimensao(const QString& ficheiro, int figura)
{
    QWidget* pagina = lumerina::Pagina(lumerina::Form::Dimensao);
    pagina->show();
    pagina->findChild<QRadioButton*>("AutoSemelhanca")->setChecked(true);
    pagina->findChild<QComboBox*>("Figura")->setCurrentIndex(figura);
    pagina->findChild<QPushButton*>("Desenhar")->click();
    pagina->findChild<QRadioButton*>("ContagemCaixas")->setChecked(true);
    pagina->findChild<QComboBox*>("Origem")->setCurrentIndex(0);
    pagina->findChild<QPushButton*>("Medir")->click();
    return Guardar(pagina, ficheiro);
}

int OrbitasDimensao(const QString& pasta)
{
    QDir().mkpath(pasta);
    AbrirLumerina();
    bool ok = true;
    struct Caso { const char* nome; const char* modo; const char* c; const char* d; const char* x0; int passos; };
    const Caso casos[] = {
        {"orbita-c1", "ModoOrbita", "1", "0", "0", 8},
        {"orbita-c-1", "ModoOrbita", "-1", "0", "0", 8},
        {"orbita-ci", "ModoOrbita", "0", "1", "0", 8},
        {"orbita-coelho", "ModoOrbita", "-0.12", "0.75", "0", 40},
        {"coseno", "ModoCoseno", "0", "0", "1", 30},
        {"quadratica-0.3", "ModoQuadratica", "0.3", "0", "0", 30},
        {"quadratica-0.5", "ModoQuadratica", "-0.5", "0", "0", 30},
        {"quadratica-1", "ModoQuadratica", "-1", "0", "0", 10},
        {"quadratica-1.3", "ModoQuadratica", "-1.3", "0", "0", 60},
        {"quadratica-1.76", "ModoQuadratica", "-1.76", "0", "0", 80},
        {"quadratica-1.9", "ModoQuadratica", "-1.9", "0", "0", 80},
    };
    for (const Caso& c : casos)
        ok = Orbita(pasta + "/" + c.nome + ".png", c.modo, c.c, c.d, c.x0, c.passos) && ok;
    QWidget* dimensao = lumerina::Pagina(lumerina::Form::Dimensao);
    for (int k = 0; k < 7; ++k) {
        ok = Dimensao(pasta + QStringLiteral("/dimensao-%1.png").arg(k), k) && ok;
        dimensao->findChild<QRadioButton*>("AutoSemelhanca")->setChecked(true);
        ok = Guardar(dimensao, pasta + QStringLiteral("/semelhanca-%1.png").arg(k)) && ok;
    }
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
    else if (args.size() >= 3 && args[1] == "julia")
        codigo = ExemplosJulia(args[2]);
    else if (args.size() >= 3 && args[1] == "caos")
        codigo = JogoCaos(args[2]);
    else if (args.size() >= 3 && args[1] == "sucessoes")
        codigo = Sucessoes(args[2]);
    else if (args.size() >= 3 && args[1] == "orbitas-dimensao")
        codigo = OrbitasDimensao(args[2]);
    else
        std::fprintf(stderr, "uso: lumerina_capturas docs PASTA | paginas PASTA | lsistemas PASTA"
                             " | ifs PASTA | julia PASTA | caos PASTA | sucessoes PASTA"
                             " | orbitas-dimensao PASTA\n");
    lumerina::FecharLumerina();
    return codigo;
}
