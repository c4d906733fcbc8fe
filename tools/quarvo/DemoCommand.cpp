// The demo: loads Quarvo.dbx into a headless session, builds the example drawing, saves
// it, reopens it and lists every entity, plots it, then shows that a drawing opened
// without the module keeps its objects as proxies and still plots their graphics.
#include "DemoCommand.h"

#include <filesystem>

#include "DemoDrawing.h"
#include "ModuleClasses.h"
#include "acutads.h"
#include "dbmain.h"
#include "dbsymtb.h"
#include "headless/Session.h"
#include "headless/SvgPlot.h"
#include "headless/TextCodec.h"
#include "rxdlinkr.h"

namespace quarvo {
namespace {

const ACHAR* const kModuleApplication = L"QX_AEC_DB_APP";

void PrintModuleClasses()
{
    const auto classes = ClassesOfApplication(kModuleApplication);
    acutPrintf(L"\nClasses registered under %s: %d\n", kModuleApplication, static_cast<int>(classes.size()));
    for (const AcRxClass* cls : classes)
        acutPrintf(L"  %s\n", DescribeClass(*cls).c_str());
}

// Every entity of the drawing's model space lists itself.
void ListModelSpace(AcDbDatabase* db)
{
    AcDbBlockTableRecord* space = nullptr;
    if (acdbOpenObject(space, db->currentSpaceId(), AcDb::kForRead) != Acad::eOk)
        return;
    AcDbBlockTableRecordIterator* it = nullptr;
    space->newIterator(it);
    for (; !it->done(); it->step()) {
        AcDbEntity* entity = nullptr;
        if (it->getEntity(entity, AcDb::kForRead) != Acad::eOk)
            continue;
        entity->list();
        acutPrintf(L"\n");
        entity->close();
    }
    delete it;
    space->close();
}

bool Plot(AcDbDatabase* db, const std::filesystem::path& path, const wchar_t* title)
{
    headless::SvgPlotOptions options;
    options.title = title;
    if (headless::SvgPlot::plot(db, path.wstring(), options) != Acad::eOk) {
        acutPrintf(L"\nCould not write %s\n", path.wstring().c_str());
        return false;
    }
    acutPrintf(L"\nPlotted %s\n", path.wstring().c_str());
    return true;
}

}  // namespace

int RunDemo(const DemoOptions& options)
{
    const std::filesystem::path out(options.outputFolder);
    std::filesystem::create_directories(out);
    const std::filesystem::path drawing = out / "demo.qxd";
    const std::wstring module = headless::fromUtf8(options.modulePath);

    acutPrintf(L"Loading %s\n", module.c_str());
    if (!acrxDynamicLinker->loadModule(module.c_str(), false))
        return 1;
    acutPrintf(L"\n");
    PrintModuleClasses();

    {
        headless::Session session;
        AcApDocument* doc = session.newDocument();
        const Acad::ErrorStatus built = session.runCommand(doc, [doc] { BuildDemoDrawing(doc->database()); },
                                                           L"QXDEMO");
        if (built != Acad::eOk || session.saveAs(doc, drawing.wstring()) != Acad::eOk) {
            acutPrintf(L"\nCould not build and save the example drawing.\n");
            return 1;
        }
        acutPrintf(L"\nSaved %s\n", drawing.wstring().c_str());
        session.close(doc);

        AcApDocument* reopened = nullptr;
        headless::DrawingReadReport report;
        if (session.openDocument(drawing.wstring(), reopened, &report) != Acad::eOk)
            return 1;
        acutPrintf(L"\nReopened %s: %d objects, %d proxies\n", drawing.wstring().c_str(), report.objects,
                   report.proxies);
        ListModelSpace(reopened->database());
        if (!Plot(reopened->database(), out / "demo.svg", L"Quarvo demo"))
            return 1;
        session.close(reopened);
    }

    acutPrintf(L"\nUnloading the module\n");
    if (!acrxDynamicLinker->unloadModule(module.c_str(), false))
        return 1;
    PrintModuleClasses();

    // Without the module nothing is lost: the entities open as proxies, keep their bytes
    // and plot the graphics they drew when the drawing was saved.
    {
        headless::Session session;
        AcApDocument* proxies = nullptr;
        headless::DrawingReadReport report;
        if (session.openDocument(drawing.wstring(), proxies, &report) != Acad::eOk)
            return 1;
        acutPrintf(L"\nOpened %s without the module: %d objects, %d proxies\n", drawing.wstring().c_str(),
                   report.objects, report.proxies);
        if (!Plot(proxies->database(), out / "demo-without-module.svg", L"Quarvo demo (proxies)"))
            return 1;
        session.close(proxies);
    }
    return 0;
}

}  // namespace quarvo
