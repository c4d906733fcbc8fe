// quarvo: drives the headless host and the module from the command line.
//   quarvo demo --module <Quarvo.dbx> [--out <folder>]
#include <clocale>
#include <cstdio>
#include <cstring>
#include <string>

#include "DemoCommand.h"

namespace {

int Usage()
{
    std::fprintf(stderr, "usage: quarvo demo --module <Quarvo.dbx> [--out <folder>]\n");
    return 2;
}

}  // namespace

int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, "C.UTF-8");
    if (argc < 2)
        return Usage();
    const std::string command = argv[1];
    if (command == "demo") {
        quarvo::DemoOptions options;
        for (int i = 2; i < argc; ++i) {
            if (std::strcmp(argv[i], "--module") == 0 && i + 1 < argc)
                options.modulePath = argv[++i];
            else if (std::strcmp(argv[i], "--out") == 0 && i + 1 < argc)
                options.outputFolder = argv[++i];
            else
                return Usage();
        }
        if (options.modulePath.empty())
            return Usage();
        return quarvo::RunDemo(options);
    }
    return Usage();
}
