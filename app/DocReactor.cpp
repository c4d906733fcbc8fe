// DocReactor: the linetype of every document, and the panels' hidden labels.
#include "DocReactor.h"

#include "Qx/LinetypeUtil.h"
#include "panel/AecPanel.h"

namespace {

DocReactor s_docReactor;
bool s_installed = false;

const ACHAR* const kDashed = L"DASHED";

}  // namespace

void DocReactor::documentCreated(AcApDocument* doc)
{
    UpdateDocument(doc);
}

void DocReactor::documentToBeDestroyed(AcApDocument*) {}

void DocReactor::documentBecameCurrent(AcApDocument*)
{
    AecPanel::ClearTemporaryHiddenPanelIds();
}

void DocReactor::EnsureLinetype(AcDbDatabase* db)
{
    if (db == nullptr)
        return;
    if (Qx::LinetypeUtil::GetLinetype(kDashed, db).isNull()) {
        Qx::LinetypeUtil::LoadSystemLinetype(kDashed, db);
        Qx::LinetypeUtil::GetLinetype(kDashed, db);
    }
}

void DocReactor::UpdateDocument(AcApDocument* doc)
{
    if (doc == nullptr)
        return;
    AcApDocManager* manager = acDocManager;
    if (manager == nullptr) {
        EnsureLinetype(doc->database());
        return;
    }
    AcApDocument* previous = manager->curDocument();
    bool locked = false;
    if ((doc->lockMode() & AcAp::kWrite) == 0) {
        if (manager->lockDocument(doc, AcAp::kWrite, nullptr, nullptr, true) != Acad::eOk)
            return;
        locked = true;
    }
    bool switched = false;
    bool current = doc == previous;
    if (!current) {
        current = manager->setCurDocument(doc, AcAp::kNone, false) == Acad::eOk;
        switched = current;
    }
    if (current)
        EnsureLinetype(doc->database());
    if (switched && previous != nullptr)
        manager->setCurDocument(previous, AcAp::kNone, false);
    if (locked)
        manager->unlockDocument(doc);
}

void DocReactor::Install()
{
    AcApDocManager* manager = acDocManager;
    if (manager == nullptr || s_installed)
        return;
    manager->addReactor(&s_docReactor);
    s_installed = true;
    AcApDocument* previous = manager->curDocument();
    AcApDocumentIterator* it = manager->newAcApDocumentIterator();
    for (; it != nullptr && !it->done(); it->step())
        UpdateDocument(it->document());
    delete it;
    if (previous != nullptr)
        manager->setCurDocument(previous, AcAp::kNone, false);
}

void DocReactor::Remove()
{
    AcApDocManager* manager = acDocManager;
    if (manager != nullptr && s_installed)
        manager->removeReactor(&s_docReactor);
    s_installed = false;
}

bool DocReactor::IsInstalled()
{
    return s_installed;
}
