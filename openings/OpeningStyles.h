// OpeningStyles: the text and dimension styles the openings draw with. A stored style is
// used while it names a live record of the drawing; otherwise the drawing's fall-back is
// used ("_Standard", else its current style) and the list says so.
#pragma once

#include "AcString.h"
#include "dbid.h"

class AcDbDatabase;

class OpeningStyles {
public:
    // The style the module's drawings are set up with; a drawing may lack it.
    static const ACHAR* const kPreferredStyleName;

    // "_Standard" of db, else db's current style; null without a database.
    static AcDbObjectId DefaultTextStyle(AcDbDatabase* db);
    static AcDbObjectId DefaultDimStyle(AcDbDatabase* db);

    // stored when it is usable in db; else fallback, else db's current style, with
    // fellBack set; null when none of them is usable or there is no database.
    static AcDbObjectId ResolveTextStyle(const AcDbObjectId& stored, const AcDbObjectId& fallback, AcDbDatabase* db,
                                         bool* fellBack = nullptr);
    static AcDbObjectId ResolveDimStyle(const AcDbObjectId& stored, const AcDbObjectId& fallback, AcDbDatabase* db,
                                        bool* fellBack = nullptr);

    // The record's name; empty when the id cannot be opened or names nothing.
    static AcString NameOf(const AcDbObjectId& styleId);

    // The list line "文字样式": the style's name or "<无效>", and "（默认兜底）" after a fall-back.
    static void ListTextStyle(const AcDbObjectId& resolved, bool fellBack);
};
