// What the fuzz targets share: the module's classes with a working drawing, and the host's
// dead-id quarantine filled before the first run.
#pragma once

class AcDbDatabase;

namespace fuzzing {

// Registers the module's classes and makes a drawing the working database, once for the
// whole run; the drawing gives filers and draws their styles and layers.
AcDbDatabase* WorkingDrawing();

// The host keeps the stubs of dead ids in a quarantine (of 65,536) before reusing them, so
// until it is full every run that makes a database leaves stubs behind. libFuzzer then sees
// more allocations than frees and scans the whole heap for leaks after the run, which cost
// nine tenths of the time. One database with more ids than the quarantine holds fills it.
void FillIdQuarantine();

}  // namespace fuzzing
