// L-systems: lengths of the examples worked out from the growth formula, the rewriting against
// a pass-by-pass loop, and the turtle's kept quirks (16-bit position rounded half to even,
// reduction after every F, the 3000-entry stack, fields that are not numbers).

#include "geometric/LSistema.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace lumerina {
namespace {

// One pass at a time, as the page describes it: every "F" replaced, the rest copied.
std::u16string PassoAPasso(std::u16string texto, std::u16string_view regra, int passes)
{
    for (int k = 0; k < passes; ++k) {
        std::u16string seguinte;
        for (const char16_t c : texto) {
            if (c == u'F')
                seguinte.append(regra);
            else
                seguinte.push_back(c);
        }
        texto = std::move(seguinte);
    }
    return texto;
}

// UTF-8 source text (two-byte sequences at most) as UTF-16.
std::u16string U(const char* utf8)
{
    std::u16string s;
    for (const unsigned char* p = reinterpret_cast<const unsigned char*>(utf8); *p; ++p) {
        if (*p >= 0xC0 && p[1])
            s.push_back(char16_t(((*p & 0x1F) << 6) | (p[1] & 0x3F))), ++p;
        else
            s.push_back(*p);
    }
    return s;
}

std::string Estreito(std::u16string_view s)
{
    return std::string(s.begin(), s.end());
}

// Every segment of a whole program, from a turtle started with `campos`.
std::vector<Segmento> Percurso(Tartaruga& t, const char* programa, const CamposTartaruga& campos,
                               std::size_t bloco = 4096)
{
    t.Partida(campos);
    const std::u16string p = U(programa);
    std::vector<Segmento> todos;
    std::vector<Segmento> parte(bloco);
    std::size_t pos = 0;
    while (pos < p.size()) {
        const std::size_t n = t.Percorrer(p, pos, parte.data(), parte.size());
        todos.insert(todos.end(), parte.begin(), parte.begin() + std::ptrdiff_t(n));
    }
    return todos;
}

std::vector<Segmento> Percurso(const char* programa, const CamposTartaruga& campos)
{
    Tartaruga t;
    return Percurso(t, programa, campos);
}

CamposTartaruga Campos(double x, double y, double inicio, double mais = 90, double menos = -90,
                       double reducao = 1)
{
    return {x, y, inicio, mais, menos, reducao};
}

// The sixteen examples: axiom, rule, passes; and, from L + a·(r − 1)·(fⁿ − 1)/(f − 1) and
// a·fⁿ, the length and the number of F's after the passes (L, a: length and F's of the axiom;
// r, f: those of the rule).
struct Exemplo {
    const char* axioma;
    const char* regra;
    int passes;
    std::uint64_t comprimento, fs;
};
const Exemplo kExemplos[] = {
    {"F", "F[+F]F[-F]F", 4, 1 + 10 * 156, 625},                   // 1 + 5 + 25 + 125 = 156
    {"F", "FF+[+F-F-F]-[-F+F+F]", 4, 1 + 19 * 585, 4096},          // (8⁴ − 1)/7 = 585
    {"F", "F[+F][-F]", 6, 1 + 8 * 364, 729},                       // (3⁶ − 1)/2 = 364
    {"F", "F[+FF][-F]", 6, 1 + 9 * 1365, 4096},                    // (4⁶ − 1)/3 = 1365
    {"++--F", "F[-F]F[+F][F]", 5, 5 + 12 * 781, 3125},             // (5⁵ − 1)/4 = 781
    {"F-F-F-F", "FF-F-F-F-FF", 4, 7 + 4 * 10 * 400, 4 * 2401},     // (7⁴ − 1)/6 = 400
    {"F-F-F-F", "FF-F+F-F-FF", 4, 7 + 4 * 10 * 400, 4 * 2401},
    {"F-F-F-F", "FF-F-F-F-F-F+F", 3, 7 + 4 * 13 * 73, 4 * 512},    // 1 + 8 + 64 = 73
    {"F-F-F-F", "F-FF--F-F", 4, 7 + 4 * 8 * 156, 4 * 625},
    {"F++F++F++", "F+F--F+F", 4, 9 + 3 * 7 * 85, 3 * 256},         // 1 + 4 + 16 + 64 = 85
    {"--F", "F+F--F+F", 4, 3 + 7 * 85, 256},
    {"F+F+F+F", "F+F-F-FF+F+F-F", 4, 7 + 4 * 13 * 585, 4 * 4096},
    {"F++F++F", "F-F++F-F", 4, 7 + 3 * 7 * 85, 3 * 256},
    {"F", "F+FF+FFF", 5, 1 + 7 * 1555, 7776},                      // (6⁵ − 1)/5 = 1555
    {"F+F+F+F", "F+FF++F+F", 4, 7 + 4 * 8 * 156, 4 * 625},
    {"F+F+F+F", "FF+F++F+F", 3, 7 + 4 * 8 * 31, 4 * 125},
};

TEST(LSistema, ComprimentoENumeroDeSegmentosDosExemplos)
{
    for (const Exemplo& e : kExemplos) {
        SCOPED_TRACE(e.regra);
        const std::u16string axioma = U(e.axioma), regra = U(e.regra);
        EXPECT_EQ(ComprimentoReescrito(axioma, regra, e.passes), e.comprimento);
        const std::u16string texto = Reescrever(axioma, regra, e.passes);
        EXPECT_EQ(texto.size(), e.comprimento);
        EXPECT_EQ(texto, PassoAPasso(axioma, regra, e.passes));
        // Every F draws one segment, whatever the angles.
        Tartaruga t;
        t.Partida(Campos(316, 631, -5));
        std::vector<Segmento> segmentos(e.fs + 1);
        std::size_t pos = 0;
        EXPECT_EQ(t.Percorrer(texto, pos, segmentos.data(), segmentos.size()), e.fs);
        EXPECT_EQ(pos, texto.size());
    }
    // The figures quoted for example "6" at six passes: 4·7⁶ segments, 7 + 40·(7⁶ − 1)/6
    // characters.
    EXPECT_EQ(ComprimentoReescrito(u"F-F-F-F", u"FF-F-F-F-FF", 6), 784'327u);
    EXPECT_EQ(Reescrever(u"F-F-F-F", u"FF-F-F-F-FF", 6).size(), 784'327u);
}

TEST(LSistema, ReescritaIgualAUmaPassagemDeCadaVez)
{
    struct Caso { const char* axioma; const char* regra; int passes; const char* porque; };
    const Caso casos[] = {
        {"F", "F[+F]F[-F]F", 0, "no pass: the axiom itself"},
        {"fFf", "FfF", 3, "lower-case f is copied, never rewritten"},
        {"xF yF", "F+Q", 2, "foreign characters and blanks are copied"},
        {"F-F", "", 2, "an empty rule removes the F's"},
        {"FF", "+-", 3, "a rule without F: the string is fixed after one pass"},
        {"F", "F", 5, "the rule F changes nothing"},
        {"AFB", "xFy", 40, "one F in the rule: the string grows linearly"},
        {"F", "Fz", 7, "one F at the start of the rule"},
        {"F", "zF", 7, "one F at the end of the rule"},
        {"+-[]", "FF", 4, "an axiom without F is never changed"},
        {"", "FF", 4, "an empty axiom"},
        {"F[F]", "FF", 9, "a rule of F's only"},
        {"FÉF", "F\xC3\x89" "F", 2, "characters beyond ASCII count as one each"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.porque);
        const std::u16string axioma = U(c.axioma), regra = U(c.regra);
        const std::u16string esperado = PassoAPasso(axioma, regra, c.passes);
        EXPECT_EQ(Reescrever(axioma, regra, c.passes), esperado);
        EXPECT_EQ(ComprimentoReescrito(axioma, regra, c.passes), esperado.size());
    }
}

TEST(LSistema, ComprimentoSemConstruirMesmoParaRepeticoesEnormes)
{
    constexpr auto kMax = std::numeric_limits<std::uint64_t>::max();
    constexpr std::int64_t kMuitas = std::int64_t(1) << 62;
    struct Caso { const char* axioma; const char* regra; std::int64_t passes; std::uint64_t comprimento; };
    const Caso casos[] = {
        {"F", "FF", 63, std::uint64_t(1) << 63},   // 2⁶³ fits
        {"F", "FF", 64, kMax},                     // 2⁶⁴ does not
        {"F-F-F-F", "FF-F-F-F-FF", kMuitas, kMax},
        {"F", "F+", kMuitas, 1 + std::uint64_t(kMuitas)},  // one more character a pass
        {"FF", "F+", kMuitas, (std::uint64_t(1) << 63) + 2},
        {"FFFF", "F+", kMuitas, kMax},
        {"F+F", "F", kMuitas, 3},                  // nothing ever changes
        {"F+F", "+", kMuitas, 3},                  // one pass, then no F is left
        {"F+F", "", kMuitas, 1},
        {"+-", "FF", kMuitas, 2},
        {"F", "FF", -5, 1},                        // a negative count makes no pass
    };
    for (const Caso& c : casos)
        EXPECT_EQ(ComprimentoReescrito(U(c.axioma), U(c.regra),
                                       c.passes),
                  c.comprimento)
            << c.axioma << " / " << c.regra << " x " << c.passes;
    // When the string stays small it is built at once, however many passes are asked for.
    EXPECT_EQ(Reescrever(u"F+F", u"F", kMuitas), u"F+F");
    EXPECT_EQ(Reescrever(u"F+F", u"[-]", kMuitas), u"[-]+[-]");
}

TEST(LSistema, LeituraEstritaDosCampos)
{
    struct Caso { const char16_t* texto; std::optional<double> valor; };
    const Caso casos[] = {
        {u"316", 316.0},    {u"  -25.7 ", -25.7}, {u"+3", 3.0},      {u"0.718", 0.718},
        {u".5", 0.5},       {u"5.", 5.0},         {u"1e3", 1000.0},  {u"2E-1", 0.2},
        {u"\u221290", -90.0},
        {u"", std::nullopt},     {u"   ", std::nullopt},   {u"abc", std::nullopt},
        {u"12a", std::nullopt},  {u"1,5", std::nullopt},   {u"- 5", std::nullopt},
        {u"inf", std::nullopt},  {u"nan", std::nullopt},   {u"1e400", std::nullopt},
        {u"0x10", std::nullopt}, {u"٣", std::nullopt},     {u"--1", std::nullopt},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(LerNumeroEstrito(c.texto), c.valor) << Estreito(c.texto);
}

TEST(LSistema, ArredondamentoA16BitsComEmpatesParaOPar)
{
    struct Caso { double valor; std::optional<std::int16_t> inteiro; };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const Caso casos[] = {
        {0.5, 0},  {1.5, 2},  {2.5, 2},  {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {0.49999999999999994, 0},
        {2.5000001, 3}, {32767.4, 32767}, {32767.5, std::nullopt}, {-32768.5, -32768},
        {-32768.6, std::nullopt}, {1e10, std::nullopt}, {nan, std::nullopt}, {-inf, std::nullopt},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(ArredondarInteiro16(c.valor), c.inteiro) << c.valor;
}

// A step of 0.5 along y: the end is rounded to the nearest integer with ties to even, so from 0
// the turtle stays at 0 for ever, while from 1 it jumps to 2 and then sticks there too (2.5 -> 2).
TEST(LSistema, PosicaoArredondadaDepoisDeCadaF)
{
    struct Caso { double y0, passo; std::vector<double> inicios; };
    const Caso casos[] = {
        {0, 0.5, {0, 0, 0}},
        {1, 0.5, {1, 2, 2}},
        {3, 0.5, {3, 4, 4}},
        {0, -0.5, {0, 0, 0}},
        {-1, -0.5, {-1, -2, -2}},
        {0, 0.7, {0, 1, 2}},
        {0, 1.5, {0, 2, 4}},   // 1.5 -> 2, 3.5 -> 4, and the drawn end stays unrounded
    };
    for (const Caso& c : casos) {
        const std::vector<Segmento> s = Percurso("FFF", Campos(10, c.y0, c.passo));
        ASSERT_EQ(s.size(), 3u);
        for (std::size_t k = 0; k < 3; ++k) {
            EXPECT_EQ(s[k].y1, c.inicios[k]) << "y0 " << c.y0 << " step " << c.passo << " F " << k;
            EXPECT_EQ(s[k].y2, c.inicios[k] + c.passo);
            EXPECT_EQ(s[k].x1, 10);
            EXPECT_EQ(s[k].x2, 10);
        }
    }
}

TEST(LSistema, PosicaoForaDos16BitsNaoEAtribuida)
{
    // The overflowing coordinate keeps its old value; the other one moves on. AngPos = -45
    // turns the step (0, d) into (d·√½, d·√½), and d = ±10·√2 makes that ±10 on both axes.
    const double d = 10 * std::sqrt(2.0);
    struct Caso { double x0, y0, passo; const char* programa; double x, y; };
    const Caso casos[] = {
        {0, 32760, 7, "F", 0, 32767},
        {0, 32760, 7.4, "F", 0, 32767},
        {0, 32760, 7.5, "F", 0, 32760},      // 32767.5 rounds to 32768
        {0, -32760, -8.5, "F", 0, -32768},   // -32768.5 rounds to the even -32768, which fits
        {0, -32760, -9, "F", 0, -32760},
        {0, 0, 1e300, "FF", 0, 0},
        {32760, -32760, d, "+F", 32760, -32750},
        {-32760, 32760, -d, "+F", -32760, 32750},
    };
    for (const Caso& c : casos) {
        Tartaruga t;
        Percurso(t, c.programa, Campos(c.x0, c.y0, c.passo, -45, 0));
        EXPECT_EQ(t.Estado().x, c.x) << c.x0 << "," << c.y0 << " + " << c.passo;
        EXPECT_EQ(t.Estado().y, c.y) << c.x0 << "," << c.y0 << " + " << c.passo;
    }
}

// Examples "3" and "4" turn 45° (or 30°) one way and 30° (or 45°) the other: "+" must take
// AngPos and "-" AngNeg, each with its own sign. With the step (0, -100), a turn by θ gives
// (100·sin θ, -100·cos θ).
TEST(LSistema, AngulosAssimetricosDosExemplos3e4)
{
    struct Caso { double mais, menos; const char* programa; double dx, dy; };
    const double r3 = std::sqrt(3.0) / 2, r2 = std::sqrt(0.5);
    const Caso casos[] = {
        {45, -30, "+F", 100 * r2, -100 * r2},
        {45, -30, "-F", -50, -100 * r3},
        {30, -45, "+F", 50, -100 * r3},
        {30, -45, "-F", -100 * r2, -100 * r2},
        {45, -30, "+-F", 100 * std::sin(15 * M_PI / 180), -100 * std::cos(15 * M_PI / 180)},
        {90, 90, "--F", 0, 100},   // examples "15" and "16": both angles 90
        {-25.7, 25.7, "+-F", 0, -100},
    };
    for (const Caso& c : casos) {
        const std::vector<Segmento> s = Percurso(c.programa, Campos(316, 631, -100, c.mais, c.menos));
        ASSERT_EQ(s.size(), 1u);
        EXPECT_NEAR(s[0].x2 - 316, c.dx, 1e-9) << c.mais << " " << c.menos << " " << c.programa;
        EXPECT_NEAR(s[0].y2 - 631, c.dy, 1e-9) << c.mais << " " << c.menos << " " << c.programa;
    }
}

TEST(LSistema, ReducaoDepoisDeCadaFEPassoRepostoPeloFechoDoParentese)
{
    // Reduction 0.5 from a step of 16: 16, then 8 inside the bracket and 4 after it; "]"
    // brings back y = 16 and the step 8 saved at "[".
    const std::vector<Segmento> s = Percurso("F[FF]F", Campos(0, 0, 16, 90, -90, 0.5));
    ASSERT_EQ(s.size(), 4u);
    const double esperado[4][2] = {{0, 16}, {16, 24}, {24, 28}, {16, 24}};
    for (int k = 0; k < 4; ++k) {
        EXPECT_EQ(s[k].y1, esperado[k][0]) << "F " << k;
        EXPECT_EQ(s[k].y2, esperado[k][1]) << "F " << k;
    }
    // With 0.718, each F along a path is 0.718 times the previous one.
    const std::vector<Segmento> t = Percurso("FFF", Campos(0, 0, -100, 45, -30, 0.718));
    EXPECT_DOUBLE_EQ(t[0].y2 - t[0].y1, -100);
    EXPECT_DOUBLE_EQ(t[1].y2 - t[1].y1, -71.8);
    EXPECT_DOUBLE_EQ(t[2].y2 - t[2].y1, -100 * 0.718 * 0.718);
}

TEST(LSistema, PilhaDe3000EstadosEFechoSemAbertura)
{
    // Push k (k = 1..3000) holds y = k. Push 3001 is lost, and so is the "]" that closes it:
    // the next "]" brings back y = 3000, and after 3000 more the stack is empty and a "]" is
    // skipped.
    std::string p;
    for (int k = 0; k < 3001; ++k)
        p += "F[";
    p += "F]F]F";
    for (int k = 0; k < 2999; ++k)
        p += "]";
    p += "F]]F";
    Tartaruga t;
    const std::vector<Segmento> s = Percurso(t, p.c_str(), Campos(5, 0, 1));
    ASSERT_EQ(s.size(), 3001u + 5u);
    EXPECT_EQ(s[3000].y1, 3000);   // the F before the lost push
    EXPECT_EQ(s[3001].y1, 3001);
    EXPECT_EQ(s[3002].y1, 3002);   // the first "]" restored nothing
    EXPECT_EQ(s[3003].y1, 3000);   // the second brought back push 3000
    EXPECT_EQ(s[3004].y1, 1);      // 2999 more "]" went back to push 1
    EXPECT_EQ(s[3005].y1, 2);      // the surplus "]" did nothing
    EXPECT_EQ(t.Profundidade(), 0);

    // A "]" on an empty stack at the very start.
    const std::vector<Segmento> u = Percurso("]]F", Campos(5, 7, 1));
    ASSERT_EQ(u.size(), 1u);
    EXPECT_EQ(u[0].y1, 7);
}

TEST(LSistema, PilhaPertenceAPaginaEntreDesenhos)
{
    // A bracket left open by one drawing is closed by the next: "]" brings back the state saved
    // then, step included.
    Tartaruga t;
    Percurso(t, "F[+F", Campos(0, 0, 10));
    EXPECT_EQ(t.Profundidade(), 1);
    const std::vector<Segmento> s = Percurso(t, "]F", Campos(50, 50, 3));
    ASSERT_EQ(s.size(), 1u);
    EXPECT_EQ(s[0].x1, 0);
    EXPECT_EQ(s[0].y1, 10);
    EXPECT_EQ(s[0].y2, 20);
    EXPECT_EQ(t.Profundidade(), 0);
}

TEST(LSistema, CamposQueNaoSaoNumerosSaltamAInstrucao)
{
    const std::optional<double> nada;
    Tartaruga t;
    Percurso(t, "FF", Campos(10, 20, 5, 90, -90, 2));   // ends at (10, 35), step (0, 20)
    struct Caso { CamposTartaruga campos; const char* programa; Segmento primeiro; Segmento ultimo; };
    const Caso casos[] = {
        // x and y not numbers: the last drawing's position stays; the step is set again.
        {{nada, nada, 4.0, 90.0, -90.0, 1.0}, "F", {10, 35, 10, 39}, {10, 35, 10, 39}},
        // a start outside 16 bits is not taken either
        {{40000.0, 7.0, 4.0, 90.0, -90.0, 1.0}, "F", {10, 7, 10, 11}, {10, 7, 10, 11}},
        // Início not a number: dy as the last drawing left it, dx back to 0
        {{0.0, 0.0, nada, 90.0, -90.0, 1.0}, "F", {0, 0, 0, 20}, {0, 0, 0, 20}},
        // no angle: the turns do nothing
        {{0.0, 0.0, 4.0, nada, nada, 1.0}, "+F-F", {0, 0, 0, 4}, {0, 4, 0, 8}},
        // no reduction: the step keeps its length
        {{0.0, 0.0, 4.0, 90.0, -90.0, nada}, "FF", {0, 0, 0, 4}, {0, 4, 0, 8}},
    };
    for (const Caso& c : casos) {
        Tartaruga u = t;
        const std::vector<Segmento> s = Percurso(u, c.programa, c.campos);
        ASSERT_FALSE(s.empty());
        const auto igual = [](const Segmento& a, const Segmento& b) {
            return a.x1 == b.x1 && a.y1 == b.y1 && a.x2 == b.x2 && a.y2 == b.y2;
        };
        EXPECT_TRUE(igual(s.front(), c.primeiro)) << c.programa << " " << s.front().x1 << ","
                                                 << s.front().y1 << " " << s.front().y2;
        EXPECT_TRUE(igual(s.back(), c.ultimo)) << c.programa;
    }
}

TEST(LSistema, SimbolosDesconhecidosNaoFazemNadaEOPercursoRetomaPorBlocos)
{
    const CamposTartaruga campos = Campos(300, 300, -7, 25.7, -31, 0.9);
    const std::vector<Segmento> limpo = Percurso("F[+F]F[-F]F+F", campos);
    const std::vector<Segmento> sujo = Percurso("aF[ +fF]F{[-F] F+ÉF", campos);
    ASSERT_EQ(sujo.size(), limpo.size());
    for (std::size_t k = 0; k < limpo.size(); ++k) {
        EXPECT_EQ(sujo[k].x2, limpo[k].x2) << k;
        EXPECT_EQ(sujo[k].y2, limpo[k].y2) << k;
    }
    // Read one segment at a time, the path is the same as in one go.
    Tartaruga t;
    const std::vector<Segmento> aos1 = Percurso(t, "F[+F]F[-F]F+F", campos, 1);
    ASSERT_EQ(aos1.size(), limpo.size());
    for (std::size_t k = 0; k < limpo.size(); ++k)
        EXPECT_EQ(aos1[k].y2, limpo[k].y2) << k;
}

}  // namespace
}  // namespace lumerina
