// DrawingFileReader: the bytes of a drawing file as a new database. It first finds every
// sound record (a damaged one is reported and the reader looks for the next record
// marker), then reads the class table, makes a stub for every object's handle so that
// references in any direction resolve, and reads the objects: with their class when it
// is loaded and accepts the data, as proxies otherwise.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "AcDbDatabase.h"
#include "ProxyData.h"
#include "headless/DrawingFile.h"

namespace hostfile {

class DrawingFileReader {
public:
    DrawingFileReader(const std::vector<std::uint8_t>& bytes, headless::DrawingReadReport& report)
        : m_bytes(bytes), m_report(report)
    {
    }

    Acad::ErrorStatus read(AcDbDatabase*& db);

private:
    struct Frame {
        std::uint8_t kind = 0;
        std::size_t offset = 0;  // of the marker
        const std::uint8_t* payload = nullptr;
        std::size_t size = 0;
    };
    struct ObjectIn {
        std::size_t offset = 0;
        Adesk::UInt64 handle = 0;
        Adesk::UInt32 classIndex = 0;
        Adesk::UInt64 owner = 0;
        std::vector<std::uint8_t> data;
        std::vector<ProxyReference> references;
        bool hasGraphics = false;
        bool compactGraphics = false;
        std::vector<std::uint8_t> graphics;
        bool hasTransform = false;
        AcGeMatrix3d transform;
    };
    // Proxies made for one class, for the summary.
    struct ProxyCount {
        AcString application;
        AcString dxfName;
        int count = 0;
    };

    Acad::ErrorStatus readHeader();
    void findFrames();
    // Whether a sound frame starts at pos; why it is not, when it is not.
    bool frameAt(std::size_t pos, Frame& frame, std::wstring& why, bool& ranOut);
    std::size_t nextMarker(std::size_t from) const;
    void readDatabaseFrame(const Frame& frame, AcDbDatabase* db);
    void readClassFrame(const Frame& frame);
    bool parseObject(const Frame& frame, ObjectIn& object);
    void readObject(ObjectIn& object, AcDbDatabase* db);
    bool makeProxy(ObjectIn& object, const ClassRecord& cls, bool asEntity, AcDbDatabase* db);
    void summarise();
    void note(const std::wstring& message);
    void damaged(const Frame& frame, const std::wstring& why);

    const std::vector<std::uint8_t>& m_bytes;
    headless::DrawingReadReport& m_report;
    Adesk::UInt64 m_handseed = 0;
    std::vector<Frame> m_frames;
    std::map<Adesk::UInt32, ClassRecord> m_classes;
    std::map<std::wstring, ProxyCount> m_proxyCounts;
    // Checksum work spent on candidate records while looking for the next sound one.
    std::uint64_t m_searchWork = 0;
};

}  // namespace hostfile
