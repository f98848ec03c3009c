#include "geometric/Transformacoes.h"

#include <cmath>
#include <numeric>
#include <utility>

namespace lumerina {

long long FiguraPlana::Segmentos() const
{
    long long s = 0;
    for (int n : tracos)
        s += n > 1 ? n - 1 : 0;
    return s;
}

FiguraPlana Figura(FiguraBase base)
{
    switch (base) {
    case FiguraBase::Quadrado:
        return {{{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}}, {5}};
    case FiguraBase::Triangulo:
        return {{{0, 0}, {1, 0}, {0.3, 0.8}, {0, 0}}, {4}};
    case FiguraBase::LetraF:
        break;
    }
    return {{{0.6, 1}, {0, 1}, {0, 0}, {0, 0.5}, {0.4, 0.5}}, {3, 2}};
}

bool Contrai(const MapaAfim& mapa) { return mapa.MaiorValorSingular() < 1 - 1e-9; }

MapaAfim Translacao(double p, double q) { return {1, 0, 0, 1, p, q}; }

MapaAfim Rotacao(double graus)
{
    // Quarter turns are exact: cos 90° is 0, not 6e-17, so the matrix reads as the table's.
    const double resto = std::fmod(graus, 90.0);
    if (resto == 0) {
        static constexpr double kCos[] = {1, 0, -1, 0}, kSen[] = {0, 1, 0, -1};
        const int q = (static_cast<int>(std::fmod(graus / 90.0, 4.0)) + 4) % 4;
        return {kCos[q], -kSen[q], kSen[q], kCos[q], 0, 0};
    }
    // To 12 decimals, so that sin 30° is 0.5 and not 0.49999999999999994 in the boxes.
    const double t = graus * (3.14159265358979323846 / 180);
    const auto doze = [](double v) { return std::round(v * 1e12) / 1e12; };
    const double c = doze(std::cos(t)), s = doze(std::sin(t));
    return {c, -s, s, c, 0, 0};
}

MapaAfim Escala(double r, double s) { return {r, 0, 0, s, 0, 0}; }

MapaAfim ReflexaoEixoX() { return {1, 0, 0, -1, 0, 0}; }

MapaAfim CisalhamentoHorizontal(double k) { return {1, k, 0, 1, 0, 0}; }

ImagensIteradas::ImagensIteradas(FiguraPlana figura) : figura_(std::move(figura))
{
    Recomecar();
}

long long ImagensIteradas::Copias(int nivel) const
{
    const std::size_t porCopia = figura_.pontos.size();
    return porCopia ? static_cast<long long>(niveis_[nivel].size() / porCopia) : 0;
}

bool ImagensIteradas::Aplicar(std::span<const MapaAfim> mapas)
{
    if (mapas.empty() || SegmentosSeguinte(static_cast<int>(mapas.size())) > kMaxSegmentos)
        return false;
    const std::vector<Ponto>& ultima = niveis_.back();
    std::vector<Ponto> seguinte;
    seguinte.reserve(ultima.size() * mapas.size());
    for (const MapaAfim& m : mapas)
        for (const Ponto& p : ultima)
            seguinte.push_back(m(p));
    niveis_.push_back(std::move(seguinte));
    return true;
}

void ImagensIteradas::Recomecar()
{
    niveis_.clear();
    niveis_.push_back(figura_.pontos);
}

}  // namespace lumerina
