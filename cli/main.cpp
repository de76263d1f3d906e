#include "base/Paths.h"
#include "cli/Command.h"
#include "platform/LargePages.h"
#include "platform/ThisProgram.h"

int main(int argc, char** argv)
{
    lumora::UseLargePages();
    lumora::SetProgramFolder(lumora::FolderOfThisProgram());
    return lumora::RunCommand({argv + (argc > 0 ? 1 : 0), argv + argc});
}
