// DocReactor: keeps every drawing supplied with the linetype the entities draw with
// (DASHED), and clears the panels' temporary label hiding when the user switches drawings.
#pragma once

#include "acdocman.h"

class DocReactor : public AcApDocManagerReactor {
public:
    void documentCreated(AcApDocument* doc) override;
    void documentToBeDestroyed(AcApDocument* doc) override;
    void documentBecameCurrent(AcApDocument* doc) override;

    // Brings doc up to date: locked for write and made current for the while, as the host
    // wants for a database change; a document that cannot be locked is skipped silently.
    static void UpdateDocument(AcApDocument* doc);
    // Ensures DASHED in db, loading it from the host's standard file when missing.
    static void EnsureLinetype(AcDbDatabase* db);

    // With the document manager and not yet installed: adds the reactor and updates every
    // open document, the current one made current again afterwards.
    static void Install();
    // Removes it when installed; the flag is cleared in any case.
    static void Remove();
    static bool IsInstalled();
};
