#include "numeric/files/ArrFiles.h"

#include <bit>
#include <limits>
#include <random>

namespace lumora::test {
namespace {

/// Elements of every kind with any bits that the kind can have.
class AnyElements {
public:
    explicit AnyElements(std::uint32_t seed) : generator_(seed) {}

    std::uint64_t Bits() { return generator_(); }
    std::int32_t Whole(std::int32_t least, std::int32_t most)
    {
        return std::uniform_int_distribution<std::int32_t>(least, most)(generator_);
    }

    void Next(double& x) { x = std::bit_cast<double>(Bits()); }
    void Next(float& x) { x = std::bit_cast<float>(static_cast<std::uint32_t>(Bits())); }
    void Next(std::int32_t& x) { x = static_cast<std::int32_t>(Bits()); }
    void Next(std::int16_t& x) { x = static_cast<std::int16_t>(Bits()); }
    void Next(std::uint8_t& x) { x = static_cast<std::uint8_t>(Bits()); }
    void Next(Currency& x) { x.ten_thousandths = static_cast<std::int64_t>(Bits()); }
    void Next(Date& x) { Next(x.days); }
    void Next(std::string& x)
    {
        static const char* const kCharacters[] = {"a", "Z", " ", "0",     "\n",
                                                  "é", "€", "Ÿ", "\u0081"};
        x.clear();
        for (std::int32_t k = Whole(0, 12); k > 0; --k)
            x += kCharacters[Whole(0, static_cast<std::int32_t>(std::size(kCharacters)) - 1)];
    }

    template <class T> Array<T> Filled(std::int32_t rows, std::int32_t columns)
    {
        Array<T> array = rows == 1 ? Array<T>(columns) : Array<T>(rows, columns);
        for (T& element : array.Span())
            Next(element);
        return array;
    }

private:
    std::mt19937_64 generator_;
};

/// The same elements to the bit, so that NaNs count too.
template <class T> bool SameBits(const Array<T>& a, const Array<T>& b)
{
    if constexpr (std::is_same_v<T, std::string>) {
        return a == b;
    } else {
        const auto bytes_of = [](const Array<T>& array) {
            const auto bytes = std::as_bytes(array.Span());
            return std::vector<std::byte>(bytes.begin(), bytes.end());
        };
        return a.Dimensions() == b.Dimensions() && bytes_of(a) == bytes_of(b) &&
               a.UBound(1) == b.UBound(1) && (a.Dimensions() == 1 || a.UBound(2) == b.UBound(2));
    }
}

class ArrRoundTrip : public ArrFiles {
protected:
    Variant ThereAndBack(const Variant& obj, const std::string& type_name = {}) const
    {
        return Read(Written(obj, type_name));
    }

    template <class T> void CheckArray(const char* type_name, const char* kind, AnyElements& any)
    {
        const Array<T> array = any.Filled<T>(any.Whole(1, 6), any.Whole(1, 40));
        const std::string bytes = Written(array, type_name);
        EXPECT_TRUE(SameBits(Read(bytes).As<Array<T>>(), array)) << type_name;
        EXPECT_EQ(Read(bytes, {}, {}, 1.0), Variant(std::string(kind)));
        EXPECT_EQ(Written(Read(bytes), type_name), bytes) << type_name;
    }

    template <class M, class T> void CheckMatrix(AnyElements& any)
    {
        const Ref<M> m = MakeRef<M>();
        m->SetRealAll(any.Filled<T>(any.Whole(1, 6), any.Whole(1, 40)));
        const Variant back = ThereAndBack(m);
        EXPECT_TRUE(SameBits(back.As<Ref<M>>()->Elements(), m->Elements()));
        EXPECT_EQ(ShapeOf(*back.As<Ref<M>>()), ShapeOf(*m));
    }
};

TEST_F(ArrRoundTrip, GivesEveryKindOfPlainArrayBackToTheBit)
{
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        AnyElements any(seed);
        CheckArray<double>("double", "double", any);
        CheckArray<std::string>("string", "string", any);
        CheckArray<Currency>("currency", "currency", any);
        CheckArray<Date>("data", "date", any);
        CheckArray<std::int32_t>("long", "long", any);
        CheckArray<float>("single", "single", any);
        CheckArray<std::int16_t>("integer", "integer", any);
        CheckArray<std::uint8_t>("byte", "byte", any);
    }
}

TEST_F(ArrRoundTrip, GivesEveryClassBackToTheBit)
{
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        AnyElements any(seed);
        CheckMatrix<clsMatrix, double>(any);
        CheckMatrix<clsLong, std::int32_t>(any);
        CheckMatrix<clsString, std::string>(any);
        const std::int32_t rows = any.Whole(1, 6);
        const std::int32_t columns = any.Whole(1, 40);
        const Ref<clsComplexMatrix> z = MakeRef<clsComplexMatrix>();
        z->SetComplexAll(any.Filled<double>(rows, columns), any.Filled<double>(rows, columns));
        const Variant back = ThereAndBack(z);
        EXPECT_TRUE(SameBits(back.As<Ref<clsComplexMatrix>>()->RealPart(), z->RealPart()));
        EXPECT_TRUE(SameBits(back.As<Ref<clsComplexMatrix>>()->ImagePart(), z->ImagePart()));
    }
}

TEST_F(ArrRoundTrip, GivesAOneRowArrayOfTwoDimensionsBackWithOne)
{
    EXPECT_EQ(ThereAndBack(Table<double>({{1, 2, 3}}), "double"), Variant(Row({1.0, 2.0, 3.0})));
}

} // namespace
} // namespace lumora::test
