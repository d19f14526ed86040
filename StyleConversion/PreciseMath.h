// Stands in front of every source of the project: refuses what lets a compiler round otherwise than the
// source says. The digits of the output are the product.
#pragma once

#if defined(__FAST_MATH__) || __FINITE_MATH_ONLY__ || defined(__ASSOCIATIVE_MATH__) ||                       \
    defined(__RECIPROCAL_MATH__) || defined(__NO_SIGNED_ZEROS__) || defined(_M_FP_FAST)
#error "StyleConversion cannot be built with -ffast-math, -Ofast or /fp:fast: digits would change."
#endif

// No contraction into fused operations, for compilers that have no option for it everywhere.
#if defined(__clang__)
#pragma STDC FP_CONTRACT OFF
#elif defined(_MSC_VER)
#pragma fp_contract(off)
#endif
