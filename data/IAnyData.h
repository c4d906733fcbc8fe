// IAnyData: a typed value held under a key of a data node. The type tag is written before
// the value in the node stream, so the tags are part of the file format: never renumber them.
#pragma once

#include <memory>

#include "adesk.h"

class IDataIO;

class IAnyData {
public:
    explicit IAnyData(Adesk::Int32 type) : m_type(type) {}
    virtual ~IAnyData() = default;
    IAnyData(const IAnyData&) = delete;
    IAnyData& operator=(const IAnyData&) = delete;

    Adesk::Int32 GetType() const { return m_type; }
    virtual void DataOut(IDataIO* io) const = 0;
    virtual void DataIn(IDataIO* io) = 0;

private:
    Adesk::Int32 m_type;
};
