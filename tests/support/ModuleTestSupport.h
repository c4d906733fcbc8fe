// Helpers for the module's suites: the module loaded from disk for the whole program, a
// working database per test, and the observations tests make of an entity (its list
// output, its filing, its draw).
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "dbmain.h"
#include "headless/RecordedPrimitive.h"

namespace qxtest {

using Bytes = std::vector<std::uint8_t>;

// Loads Quarvo.dbx through the host's dynamic linker before the first test and unloads it
// after the last; call once from a suite's source (it registers a test environment).
bool RegisterModuleEnvironment();

// A fresh default drawing that is the working database while the object lives.
class WorkingDatabase {
public:
    WorkingDatabase();
    ~WorkingDatabase();
    WorkingDatabase(const WorkingDatabase&) = delete;
    WorkingDatabase& operator=(const WorkingDatabase&) = delete;

    AcDbDatabase* db() { return &m_db; }
    // Appends the entity to model space and closes it.
    AcDbObjectId Add(AcDbEntity* entity);

private:
    AcDbDatabase m_db;
    AcDbDatabase* m_previous;
};

// What the entity's list prints on the command line.
std::wstring ListOutput(const AcDbEntity* entity);
// The entity's fields through a file filer of db (the entity's own when null).
Bytes FileOut(const AcDbObject* object, AcDbDatabase* db = nullptr);
// Reads bytes into object through a file filer; answers dwgInFields' status.
Acad::ErrorStatus FileIn(AcDbObject* object, const Bytes& bytes, AcDbDatabase* db = nullptr);
// The typed calls of the object's dwgOutFields, one line each.
std::vector<std::string> FilingTranscript(const AcDbObject* object);
// The primitives the entity draws.
std::vector<headless::RecordedPrimitive> Draw(AcDbEntity* entity);

// Points and vectors compared within a tolerance, with the coordinates in the message.
::testing::AssertionResult Near(const AcGePoint3d& a, const AcGePoint3d& b, double tol = 1e-9);
::testing::AssertionResult Near(const AcGeVector3d& a, const AcGeVector3d& b, double tol = 1e-9);
// Two draws made the same primitives, coordinates within tol.
::testing::AssertionResult SamePrimitives(const std::vector<headless::RecordedPrimitive>& a,
                                          const std::vector<headless::RecordedPrimitive>& b, double tol = 1e-6);

}  // namespace qxtest
