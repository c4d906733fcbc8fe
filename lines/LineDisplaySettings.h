// LineDisplaySettings: the node (JieDian) and flashing (ShouBian) display settings that
// every layout line carries: four layer names and four colour indices. The lines draw
// their outlines in the JieDian boundary style and their dashed detail lines in the
// ShouBian line style; the text settings are kept for the application.
#pragma once

#include <cstddef>
#include <vector>

#include "AcString.h"
#include "dbid.h"

class AcDbDatabase;
class AcDbEntity;
class AcGiSubEntityTraits;

class LineDisplaySettings {
public:
    AcString jieDianTextLayerName;
    AcString jieDianBoundaryLayerName;
    AcString shouBianTextLayerName;
    AcString shouBianLineLayerName;
    int jieDianTextColorIndex = 0;
    int jieDianBoundaryColorIndex = 0;
    int shouBianTextColorIndex = 0;
    int shouBianLineColorIndex = 0;

    // Indices outside 0..256 are stored as 0, the entity's own colour.
    static int ClampColorIndex(int index);

    // The four colours in their filed order (JieDian text, JieDian boundary, ShouBian
    // text, ShouBian line), appended to a record's integers or taken from position first
    // on as far as the record reaches.
    void AppendColorIndices(std::vector<Adesk::Int32>& ints) const;
    void TakeColorIndices(const std::vector<Adesk::Int32>& ints, std::size_t first);
    // The four layer names, in the same order.
    void AppendLayerNames(std::vector<AcString>& strings) const;
    void TakeLayerNames(const std::vector<AcString>& strings, std::size_t first);

    // The JieDian boundary layer when it names a layer of db, and the JieDian boundary
    // colour when it is not 0; whatever is not set keeps the entity's own.
    void ApplyBoundaryStyle(AcGiSubEntityTraits& traits, AcDbDatabase* db) const;
    void ApplyBoundaryStyle(AcDbEntity& piece, AcDbDatabase* db) const;
    // The ShouBian line layer and colour likewise, dashed when db has the "DASHED"
    // linetype, at the entity's linetype scale.
    void ApplyShouBianLineStyle(AcGiSubEntityTraits& traits, AcDbDatabase* db, double linetypeScale) const;
    void ApplyShouBianLineStyle(AcDbEntity& piece, AcDbDatabase* db) const;

    // A null id when db is null or has no such record (a drawing without the entity's
    // database has none of its layers or linetypes).
    static AcDbObjectId FindLayer(AcDbDatabase* db, const AcString& name);
    static AcDbObjectId FindLinetype(AcDbDatabase* db, const ACHAR* name);
};
