#pragma once

#include "numeric/Matrices.h"

#include <cstdint>
#include <random>
#include <string>

namespace lumora::test {

/// Random matrices with many equal elements, from a seed that a failing test tells.
class RandomMatrices {
public:
    explicit RandomMatrices(std::uint32_t seed) : generator_(seed) {}

    std::int32_t Whole(std::int32_t least, std::int32_t most)
    {
        return std::uniform_int_distribution<std::int32_t>(least, most)(generator_);
    }
    double Number() { return 0.5 * Whole(-9, 9); }
    std::string Text() { return std::string(static_cast<std::size_t>(Whole(0, 2)), Letter()); }

    Ref<clsMatrix> Real(std::int32_t rows, std::int32_t columns)
    {
        return Filled<clsMatrix>(rows, columns, [this] { return Number(); });
    }
    Ref<clsLong> Long(std::int32_t rows, std::int32_t columns)
    {
        return Filled<clsLong>(rows, columns, [this] { return Whole(-5, 5); });
    }
    Ref<clsString> Texts(std::int32_t rows, std::int32_t columns)
    {
        return Filled<clsString>(rows, columns, [this] { return Text(); });
    }
    Ref<clsVariant> Mixed(std::int32_t rows, std::int32_t columns)
    {
        return Filled<clsVariant>(rows, columns, [this]() -> Variant {
            if (Whole(0, 1) == 0) return Number();
            return Text();
        });
    }
    Ref<clsComplexMatrix> Complexes(std::int32_t rows, std::int32_t columns)
    {
        Ref<clsComplexMatrix> m = MakeRef<clsComplexMatrix>();
        m->SetComplexAll(Real(rows, columns)->GetRealAll(), Real(rows, columns)->GetRealAll());
        return m;
    }
    Ref<clsMatrixComplex> Objects(std::int32_t rows, std::int32_t columns)
    {
        Ref<clsMatrixComplex> m = MakeRef<clsMatrixComplex>();
        m->CopyObject_C(*Complexes(rows, columns));
        return m;
    }

private:
    char Letter() { return static_cast<char>('a' + Whole(0, 2)); }

    template <class M, class Next> Ref<M> Filled(std::int32_t rows, std::int32_t columns, Next next)
    {
        Ref<M> m = MakeRef<M>();
        m->Initial_matrix(rows, columns);
        for (std::int32_t i = 1; i <= rows; ++i)
            for (std::int32_t j = 1; j <= columns; ++j)
                m->Real(i, j, next());
        return m;
    }

    std::mt19937 generator_;
};

} // namespace lumora::test
