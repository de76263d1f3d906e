#include "cli/Command.h"

int main(int argc, char** argv)
{
    return lumora::RunCommand({argv + (argc > 0 ? 1 : 0), argv + argc});
}
