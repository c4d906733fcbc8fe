// AecPolyOpeningDocData: what the polygonal openings keep per document: whether the
// document is in inspect mode (segment labels shown).
#pragma once

struct AecPolyOpeningDocData {
    bool inspectMode = false;
};
