// DrawingFileWriter: a database as the bytes of a drawing file. Objects are written in
// handle order, classes in the order objects first use them, so that a drawing that is
// read and written again gives the same bytes.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "AcDbDatabase.h"
#include "ProxyData.h"
#include "headless/RecordingWorldDraw.h"

namespace hostfile {

class DrawingFileWriter {
public:
    explicit DrawingFileWriter(AcDbDatabase* db);

    // The file into out, reusing its memory; on failure out holds nothing of use.
    Acad::ErrorStatus write(std::vector<std::uint8_t>& out);

private:
    struct ObjectOut {
        Adesk::UInt64 handle = 0;
        Adesk::UInt32 classIndex = 0;
        Adesk::UInt64 owner = 0;
        std::vector<std::uint8_t> data;
        std::vector<ProxyReference> references;
        bool hasGraphics = false;
        std::vector<std::uint8_t> graphics;
        bool hasTransform = false;
        AcGeMatrix3d transform;
    };

    Acad::ErrorStatus fileObject(const AcDbObject* obj, ObjectOut& out);
    Adesk::UInt32 classIndexOf(const ClassRecord& cls);
    Adesk::UInt32 classIndexOf(const AcRxClass* cls);
    // A record is framed in two steps around its payload, written in place between them:
    // the head (marker, kind, room for the length), then the length and the checksum.
    std::size_t beginFrame(std::vector<std::uint8_t>& to, std::uint8_t kind);
    void endFrame(std::vector<std::uint8_t>& to, std::size_t checkedFrom);
    // Appends a checksummed record to to.
    void frame(std::vector<std::uint8_t>& to, std::uint8_t kind, const std::vector<std::uint8_t>& payload);
    std::vector<std::uint8_t> databasePayload() const;
    // Appends the object's record to m_out, its payload written in place.
    void frameObject(const ObjectOut& object);

    AcDbDatabase* m_db;
    std::vector<ClassRecord> m_classes;
    std::map<std::wstring, Adesk::UInt32> m_classIndex;
    std::unordered_map<const AcRxClass*, Adesk::UInt32> m_runtimeClassIndex;  // the same, by runtime class
    std::vector<std::uint8_t> m_out;
    std::uint32_t m_frames = 0;
    // One recording for every custom entity's graphics and one set of object buffers for
    // the whole save: a fresh recording and fresh buffers per object cost a save as much as
    // the encoding itself.
    headless::RecordingWorldDraw m_draw;
};

}  // namespace hostfile
