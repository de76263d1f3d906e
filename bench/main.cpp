#include "platform/LargePages.h"

#include <benchmark/benchmark.h>

// As the programs do, so that a benchmark measures what a user gets.
int main(int argc, char** argv)
{
    lumora::UseLargePages();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
