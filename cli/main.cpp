#include "cli/Command.h"
#include "cli/LargePages.h"

int main(int argc, char** argv)
{
    lumora::UseLargePages();
    return lumora::RunCommand({argv + (argc > 0 ? 1 : 0), argv + argc});
}
