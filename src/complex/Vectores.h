#pragma once
// The vector lanes the escape-time kernels run their points in, shared by their sources (not
// part of any interface). A lane does one IEEE operation per written operation, in the written
// order, so it computes exactly what the plain scalar loop computes.

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#define LUMERINA_X86 1
#endif

namespace lumerina::vectores {

typedef double V2d __attribute__((vector_size(16)));  // two lanes: SSE2
typedef double V4d __attribute__((vector_size(32)));  // four lanes: AVX2

// The escape test of one step for a vector of lanes. A lane runs while every test so far found
// r < 4 (the mask `vivo`: all ones or all zeros per lane, in a double vector); a running lane
// counts one step more. Returns the bits of the lanes still running.
template <class Vd>
[[gnu::always_inline]] inline int Testar(const Vd& r, Vd& vivo, Vd& n, const Vd& quatro,
                                         const Vd& um)
{
    using Vl = decltype(Vd{} < Vd{});
    const Vl m = reinterpret_cast<Vl>(vivo) & (r < quatro);
    vivo = reinterpret_cast<Vd>(m);
    n += reinterpret_cast<Vd>(m & reinterpret_cast<Vl>(um));
    int bits = 0;
    for (unsigned e = 0; e < sizeof(Vd) / sizeof(double); ++e)
        bits |= int(m[e] & 1) << e;
    return bits;
}

#ifdef LUMERINA_X86
// The same, spelt with SSE2 intrinsics: without SSE4.1, GCC lowers two-lane integer masks badly.
[[gnu::always_inline]] inline int Testar(const V2d& r, V2d& vivo, V2d& n, const V2d& quatro,
                                         const V2d& um)
{
    vivo = _mm_and_pd(vivo, _mm_cmplt_pd(r, quatro));
    n = _mm_add_pd(n, _mm_and_pd(vivo, um));
    return _mm_movemask_pd(vivo);
}
#endif

}  // namespace lumerina::vectores
