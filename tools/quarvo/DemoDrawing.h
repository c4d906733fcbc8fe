// The built-in example: a small cladding layout of circle openings and division lines.
#pragma once

class AcDbDatabase;

namespace quarvo {

// Adds the example's layers and entities to db's current space. Run inside a command of
// the drawing's document (the drawing must be locked for write).
void BuildDemoDrawing(AcDbDatabase* db);

}  // namespace quarvo
