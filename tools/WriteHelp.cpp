// Writes what is installed of the help of varnplot: its manual page, or its completion in bash.
//
//     writehelp man|completion

#include "plot/PlotHelp.h"

#include <cstdio>
#include <cstring>

int main(int argc, char* argv[])
{
    const bool isMan = argc == 2 && std::strcmp(argv[1], "man") == 0;
    const bool isCompletion = argc == 2 && std::strcmp(argv[1], "completion") == 0;
    if (!isMan && !isCompletion) {
        std::fputs("usage: writehelp man|completion\n", stderr);
        return 2;
    }
    std::fputs(qPrintable(isMan ? plotManPage() : plotCompletion()), stdout);
    return 0;
}
