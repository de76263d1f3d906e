#include "cli/Command.h"
#include "platform/LargePages.h"

int main(int argc, char** argv)
{
    lumora::UseLargePages();
    return lumora::RunCommand({argv + (argc > 0 ? 1 : 0), argv + argc});
}
