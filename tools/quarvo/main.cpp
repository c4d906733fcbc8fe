// quarvo: the command-line tool over the headless host and the module.
//   quarvo new LAYOUT.json -o FILE.qxd        a drawing from a layout description
//   quarvo list FILE [--handle H...] [--type DXFNAME...]
//   quarvo plot FILE -o OUT.svg|OUT.png [--width PX] [--layers NAME...]
//   quarvo export-dxf FILE -o OUT.dxf
//   quarvo check FILE                         exit 0 clean, 1 findings, 2 unreadable
//   quarvo copy FILE --handles H... [-o OUT]
//   quarvo demo [--out FOLDER]
// Every command takes --module PATH (default: Quarvo.dbx beside the program). A bad
// argument or an unreadable file ends with exit code 2 and one line on stderr.
#include <CLI/CLI.hpp>

#include <clocale>
#include <cstdio>
#include <exception>
#include <new>

#include "CheckCommand.h"
#include "CopyCommand.h"
#include "DemoCommand.h"
#include "ExportDxfCommand.h"
#include "ListCommand.h"
#include "NewCommand.h"
#include "PlotCommand.h"
#include "ToolError.h"
#include "ToolSession.h"

namespace {

int Fail(const std::string& message)
{
    std::fprintf(stderr, "quarvo: %s\n", message.c_str());
    return quarvo::kExitError;
}

// CLI11's messages as one line, with where to look for help.
std::string OneLineOf(const CLI::ParseError& error, const CLI::App& app)
{
    std::string message = error.what();
    for (char& c : message) {
        if (c == '\n')
            c = ' ';
    }
    std::string command = "quarvo";
    for (const CLI::App* sub : app.get_subcommands())
        command += " " + sub->get_name();
    return message + " (see " + command + " --help)";
}

}  // namespace

// Read by LeakSanitizer in the sanitizer builds, unused otherwise: fontconfig, under
// librsvg, keeps its font caches until the process ends by design.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\n";
}

int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, "C.UTF-8");
    CLI::App app("Quarvo: cladding layout drawings through the headless host and the Quarvo.dbx module.", "quarvo");
    app.require_subcommand(1);
    std::string modulePath = quarvo::ToolSession::DefaultModulePath();
    app.add_option("--module", modulePath, "the module to load (default: Quarvo.dbx beside this program)");

    quarvo::NewOptions newOptions;
    CLI::App* newCommand = app.add_subcommand("new", "Make a drawing from a layout description (JSON).");
    newCommand->add_option("layout", newOptions.layout, "the layout description, see docs/layout-format.md")
        ->required();
    newCommand->add_option("-o,--output", newOptions.output, "the drawing to write (.qxd)")->required();

    quarvo::ListOptions listOptions;
    CLI::App* listCommand = app.add_subcommand("list", "Print the entities' own list output, as LIST shows it.");
    listCommand->add_option("drawing", listOptions.drawing, "the drawing (.qxd)")->required();
    listCommand->add_option("--handle", listOptions.handles, "only the entity with this handle (repeatable)");
    listCommand->add_option("--type", listOptions.types, "only entities of this DXF name, e.g. QX_PANEL (repeatable)");

    quarvo::PlotOptions plotOptions;
    CLI::App* plotCommand = app.add_subcommand("plot", "Plot model space to an SVG or PNG picture.");
    plotCommand->add_option("drawing", plotOptions.drawing, "the drawing (.qxd)")->required();
    plotCommand->add_option("-o,--output", plotOptions.output, "the picture to write (.svg or .png)")->required();
    plotCommand->add_option("--width", plotOptions.widthPixels, "the picture's width in pixels (16 to 16384)")
        ->check(CLI::Range(16, 16384));
    plotCommand->add_option("--layers", plotOptions.layers, "only these layers");

    quarvo::ExportDxfOptions dxfOptions;
    CLI::App* dxfCommand = app.add_subcommand("export-dxf", "Export what every entity draws to a DXF file.");
    dxfCommand->add_option("drawing", dxfOptions.drawing, "the drawing (.qxd)")->required();
    dxfCommand->add_option("-o,--output", dxfOptions.output, "the DXF file to write")->required();

    quarvo::CheckOptions checkOptions;
    CLI::App* checkCommand =
        app.add_subcommand("check",
                           "Report damaged records, proxies and entities whose data does not hold together.\n"
                           "Exit code 0 when clean, 1 with findings, 2 when the file cannot be read.");
    checkCommand->add_option("drawing", checkOptions.drawing, "the drawing (.qxd)")->required();

    quarvo::CopyOptions copyOptions;
    CLI::App* copyCommand = app.add_subcommand("copy", "Copy objects with the host's copy command (deep clone).");
    copyCommand->add_option("drawing", copyOptions.drawing, "the drawing (.qxd)")->required();
    copyCommand->add_option("--handles", copyOptions.handles, "the objects to copy")->required();
    copyCommand->add_option("-o,--output", copyOptions.output, "where to save (default: the drawing itself)");

    quarvo::DemoOptions demoOptions;
    CLI::App* demoCommand = app.add_subcommand("demo", "Build, save, reopen, list and plot the built-in example.");
    demoCommand->add_option("--out", demoOptions.outputFolder, "the folder for the demo's files");

    for (CLI::App* command : app.get_subcommands({}))
        command->fallthrough();

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::printf("%s", app.help().c_str());
        return quarvo::kExitOk;
    } catch (const CLI::CallForAllHelp&) {
        std::printf("%s", app.help("", CLI::AppFormatMode::All).c_str());
        return quarvo::kExitOk;
    } catch (const CLI::ParseError& error) {
        return Fail(OneLineOf(error, app));
    }

    try {
        if (*newCommand) {
            newOptions.modulePath = modulePath;
            return quarvo::RunNew(newOptions);
        }
        if (*listCommand) {
            listOptions.modulePath = modulePath;
            return quarvo::RunList(listOptions);
        }
        if (*plotCommand) {
            plotOptions.modulePath = modulePath;
            return quarvo::RunPlot(plotOptions);
        }
        if (*dxfCommand) {
            dxfOptions.modulePath = modulePath;
            return quarvo::RunExportDxf(dxfOptions);
        }
        if (*checkCommand) {
            checkOptions.modulePath = modulePath;
            return quarvo::RunCheck(checkOptions);
        }
        if (*copyCommand) {
            copyOptions.modulePath = modulePath;
            return quarvo::RunCopy(copyOptions);
        }
        demoOptions.modulePath = modulePath;
        return quarvo::RunDemo(demoOptions);
    } catch (const quarvo::ToolError& error) {
        return Fail(error.what());
    } catch (const std::bad_alloc&) {
        return Fail("out of memory");
    } catch (const std::exception& error) {
        return Fail(std::string("unexpected failure: ") + error.what());
    }
}
