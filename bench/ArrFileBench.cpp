// Matrix files of 100 MB beside a plain copy of such a file. Each round writes a new file where one
// is written at all, so that both sides pay for its pages.
#include "numeric/clsMatrix.h"
#include "numeric/files/ArrFile.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace lumora {
namespace {

namespace fs = std::filesystem;

constexpr std::int32_t kRows = 12'500;
constexpr std::int32_t kColumns = 1'000;

/// A folder with one file of a matrix, gone at the end of the scope.
class MatrixOnDisk {
public:
    MatrixOnDisk()
    {
        std::string name = (fs::temp_directory_path() / "lumora-bench-XXXXXX").string();
        if (!mkdtemp(name.data())) throw std::runtime_error("cannot make " + name);
        folder_ = name;
        matrix->Initial_matrix(kRows, kColumns);
        for (std::int32_t j = 1; j <= kColumns; ++j)
            for (std::int32_t i = 1; i <= kRows; ++i)
                matrix->Real(i, j, i + 0.001 * j);
        std::string file = File();
        WriteArr(file, matrix, "");
    }
    ~MatrixOnDisk() { fs::remove_all(folder_); }
    MatrixOnDisk(const MatrixOnDisk&) = delete;
    MatrixOnDisk& operator=(const MatrixOnDisk&) = delete;

    std::string File() const { return (folder_ / "m.arr").string(); }
    std::string Other() const { return (folder_ / "copy.arr").string(); }

    Ref<clsMatrix> matrix = MakeRef<clsMatrix>();

private:
    fs::path folder_;
};

void Write(benchmark::State& state)
{
    const MatrixOnDisk disk;
    for (auto _ : state) {
        std::string name = disk.Other();
        benchmark::DoNotOptimize(WriteArr(name, disk.matrix, ""));
    }
}

void Read(benchmark::State& state)
{
    const MatrixOnDisk disk;
    for (auto _ : state) {
        std::string name = disk.File();
        benchmark::DoNotOptimize(ReadArr(name));
    }
}

void Copy(benchmark::State& state)
{
    const MatrixOnDisk disk;
    for (auto _ : state) {
        fs::remove(disk.Other());
        fs::copy_file(disk.File(), disk.Other());
    }
}

BENCHMARK(Write)->Name("WriteArr_100MB/lumora")->Unit(benchmark::kMillisecond);
BENCHMARK(Copy)->Name("WriteArr_100MB/other")->Unit(benchmark::kMillisecond);
BENCHMARK(Read)->Name("ReadArr_100MB/lumora")->Unit(benchmark::kMillisecond);
BENCHMARK(Copy)->Name("ReadArr_100MB/other")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lumora
