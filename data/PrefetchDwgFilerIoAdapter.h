// PrefetchDwgFilerIoAdapter: gives back one 32-bit integer that was read ahead, then
// forwards. A reader that had to look at the first integer to tell the stream's format, and
// found it belonged to the data, wraps its channel in this so the data reads as if nothing
// had been consumed. Internal to the data tree.
#pragma once

#include "DataIoDecorator.h"

class PrefetchDwgFilerIoAdapter : public DataIoDecorator {
public:
    PrefetchDwgFilerIoAdapter(IDataIO* inner, Adesk::Int32 value)
        : DataIoDecorator(inner), m_prefetched(value), m_pending(true)
    {
    }

    // Only a signed 32-bit read takes the prefetched value; every stream that is read
    // through this adapter starts with one.
    void Read(Adesk::Int32& value) override
    {
        if (m_pending) {
            value = m_prefetched;
            m_pending = false;
            return;
        }
        DataIoDecorator::Read(value);
    }

    using DataIoDecorator::Read;

private:
    Adesk::Int32 m_prefetched;
    bool m_pending;
};
