// Helpers of the drawing-file suites: a sample drawing of host entities and test shapes,
// reading and writing drawings as bytes, and temporary files.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "CloneTestSupport.h"
#include "FileTestObjects.h"
#include "dbents.h"
#include "headless/CommandLine.h"
#include "headless/DrawingFile.h"
#include "headless/TextCodec.h"

namespace filetest {

using Bytes = std::vector<std::uint8_t>;

inline Bytes writeBytes(AcDbDatabase* db)
{
    Bytes bytes;
    EXPECT_EQ(headless::DrawingFile::write(db, bytes), Acad::eOk);
    return bytes;
}

// Reads bytes into a database (null when the reader refused the file).
inline std::unique_ptr<AcDbDatabase> readBytes(const Bytes& bytes, headless::DrawingReadReport* report = nullptr,
                                               Acad::ErrorStatus* status = nullptr)
{
    AcDbDatabase* db = nullptr;
    const Acad::ErrorStatus es = headless::DrawingFile::read(bytes, db, report);
    if (status != nullptr)
        *status = es;
    return std::unique_ptr<AcDbDatabase>(db);
}

// The objects a sample drawing holds, by role.
struct Sample {
    AcDbObjectId line;
    AcDbObjectId circle;
    AcDbObjectId text;
    AcDbObjectId shapeA;  // links forward to shapeB
    AcDbObjectId shapeB;
    AcDbObjectId record;  // targets shapeA
    AcDbObjectId roofLayer;
};

// Host entities on a layer "roof", two shapes (the first linking to the second, made
// later) and a record pointing at the first shape. The test classes must be registered.
inline Sample buildSample(AcDbDatabase* db)
{
    Sample s;
    s.roofLayer = clonetest::addLayer(db, L"roof", 5);
    auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(100, 50, 0));
    line->setLayer(s.roofLayer);
    s.line = clonetest::append(db, line);
    s.circle = clonetest::append(db, new AcDbCircle(AcGePoint3d(20, 20, 0), AcGeVector3d::kZAxis, 7.5));
    s.text = clonetest::append(db, new AcDbText(AcGePoint3d(5, 60, 0), L"屋面板 A-1", db->textstyle(), 3.5, 0.25));
    auto* a = new FileTestShape();
    a->setCenter(AcGePoint3d(40, 40, 0));
    a->setRadius(4);
    a->setLabel(L"转角板");
    s.shapeA = clonetest::append(db, a);
    auto* b = new FileTestShape();
    b->setCenter(AcGePoint3d(60, 10, 0));
    b->setRadius(2);
    b->setLabel(L"B");
    b->setLayer(s.roofLayer);
    s.shapeB = clonetest::append(db, b);
    clonetest::edit<FileTestShape>(s.shapeA, [&](FileTestShape* shape) { shape->setLink(s.shapeB); });
    auto* record = new FileTestRecord();
    record->setNumber(17);
    record->setTarget(s.shapeA);
    EXPECT_EQ(db->addAcDbObject(s.record, record), Acad::eOk);
    record->close();
    return s;
}

// A file name in the test's temporary folder, removed again by the destructor.
class TempFile {
public:
    explicit TempFile(const std::string& name);
    ~TempFile();
    const std::wstring& path() const { return m_path; }
    Bytes contents() const;

private:
    std::wstring m_path;
};

}  // namespace filetest
