#include <lumora/facade/ZELFunctions.h>

#include <cstdio>
#include <exception>

/// raise_pitch IN OUT: a fourth up, in just tuning.
int main(int argc, char** argv)
{
    if (argc != 3) return 2;
    lumora::ZELFunctions engine;
    engine.InFileName = argv[1];
    engine.OutFileName = argv[2];
    engine.Q_P = 3.0 / 4.0;
    lumora::ProgressBar bar;
    try {
        const int status = engine.On_Note(bar);
        std::printf("On_Note answered %d at %d of %d\n", status, bar.Value, bar.Max);
        return status == 0 && bar.Value == bar.Max ? 0 : 1;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
