// DrawingFileWriter: header, database record, class table, object records, end record.
#include "DrawingFileWriter.h"

#include <cstring>
#include <iterator>

#include "AcDbEntity.h"
#include "DrawingFiler.h"
#include "DrawingFormat.h"
#include "GraphicsCodec.h"
#include "HostClassSet.h"
#include "acutads.h"
#include "db/AcDbStub.h"
#include "headless/DatabaseAccess.h"
#include "headless/RecordingWorldDraw.h"

namespace hostfile {

namespace {

// Room made for each object before the first record is framed: a plain entity takes about
// 200 bytes, a custom one with its graphics one to several kilobytes.
constexpr std::size_t kBytesPerObjectGuess = 512;

void putLittle(std::vector<std::uint8_t>& out, std::uint64_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

std::uint64_t handleOf(const AcDbObjectId& id)
{
    return id.isNull() ? 0 : id.handle().value();
}

// The object to file, opened for read; an object open for write is filed as it is now.
class ReadAccess {
public:
    explicit ReadAccess(const AcDbObjectId& id)
    {
        m_status = acdbOpenObject(m_object, id, AcDb::kForRead);
        if (m_status == Acad::eOk) {
            m_opened = true;
            return;
        }
        AcDbObject* held = AcDbStub::objectOf(id);
        m_object = held != nullptr && held->isReadEnabled() ? held : nullptr;
    }
    ~ReadAccess()
    {
        if (m_opened)
            m_object->close();
    }
    ReadAccess(const ReadAccess&) = delete;
    ReadAccess& operator=(const ReadAccess&) = delete;
    const AcDbObject* object() const { return m_object; }
    Acad::ErrorStatus status() const { return m_status; }

private:
    AcDbObject* m_object = nullptr;
    Acad::ErrorStatus m_status = Acad::eOk;
    bool m_opened = false;
};

}  // namespace

DrawingFileWriter::DrawingFileWriter(AcDbDatabase* db) : m_db(db)
{
    m_draw.setRegenType(kAcGiSaveWorldDrawForProxy);
    m_draw.setDatabase(db);
}

Adesk::UInt32 DrawingFileWriter::classIndexOf(const ClassRecord& cls)
{
    const std::wstring name = cls.name.kwszPtr();
    const auto it = m_classIndex.find(name);
    if (it != m_classIndex.end())
        return it->second;
    const auto index = static_cast<Adesk::UInt32>(m_classes.size());
    m_classes.push_back(cls);
    m_classIndex.emplace(name, index);
    return index;
}

Adesk::UInt32 DrawingFileWriter::classIndexOf(const AcRxClass* cls)
{
    const auto it = m_runtimeClassIndex.find(cls);
    if (it != m_runtimeClassIndex.end())
        return it->second;
    const Adesk::UInt32 index = classIndexOf(ClassRecord::of(cls));
    m_runtimeClassIndex.emplace(cls, index);
    return index;
}

// Custom entities keep the graphics they draw now, as the drawing's record of them for
// hosts without their class; proxies keep what they were read with.
Acad::ErrorStatus DrawingFileWriter::fileObject(const AcDbObject* obj, ObjectOut& out)
{
    const ProxyData* proxy = ProxyAccess::dataOf(obj);
    out.handle = obj->handle().value();
    out.owner = handleOf(obj->ownerId());
    out.classIndex = proxy != nullptr ? classIndexOf(proxy->cls) : classIndexOf(obj->isA());

    DrawingFiler filer(m_db);
    out.data.clear();
    filer.setBytes(std::move(out.data));
    const Acad::ErrorStatus es = obj->dwgOut(&filer);
    if (es != Acad::eOk)
        return es;
    out.data = filer.takeBytes();
    out.references = filer.references();

    const AcDbEntity* entity = AcDbEntity::cast(obj);
    const std::vector<headless::RecordedPrimitive>* graphics = nullptr;
    if (proxy != nullptr && proxy->hasGraphics) {
        graphics = &proxy->graphics;
    } else if (proxy == nullptr && entity != nullptr && !HostClassSet::isHostClass(obj->isA())) {
        m_draw.clear();
        m_draw.drawDrawable(const_cast<AcDbEntity*>(entity));
        graphics = &m_draw.primitives();
    }
    out.hasGraphics = graphics != nullptr;
    if (graphics != nullptr) {
        out.graphics.clear();
        headless::MemoryDwgFiler graphicsFiler(std::move(out.graphics), AcDb::kFileFiler, m_db);
        GraphicsCodec::write(&graphicsFiler, *graphics);
        if (graphicsFiler.filerStatus() != Acad::eOk)
            return graphicsFiler.filerStatus();
        out.graphics = graphicsFiler.takeBytes();
    }
    out.hasTransform = proxy != nullptr && proxy->hasTransform;
    if (out.hasTransform)
        out.transform = proxy->transform;
    return Acad::eOk;
}

std::size_t DrawingFileWriter::beginFrame(std::vector<std::uint8_t>& to, std::uint8_t kind)
{
    putLittle(to, kRecordMarker, 4);
    const std::size_t checkedFrom = to.size();
    to.push_back(kind);
    putLittle(to, 0, 4);  // the payload's length, once it is written
    return checkedFrom;
}

void DrawingFileWriter::endFrame(std::vector<std::uint8_t>& to, std::size_t checkedFrom)
{
    const std::size_t lengthAt = checkedFrom + 1;
    const std::size_t payloadBytes = to.size() - (lengthAt + 4);
    for (int i = 0; i < 4; ++i)
        to[lengthAt + i] = static_cast<std::uint8_t>(payloadBytes >> (8 * i));
    const std::uint32_t crc = checksum(to.data() + checkedFrom, to.size() - checkedFrom);
    putLittle(to, crc, 4);
    ++m_frames;
}

void DrawingFileWriter::frame(std::vector<std::uint8_t>& to, std::uint8_t kind,
                              const std::vector<std::uint8_t>& payload)
{
    const std::size_t checkedFrom = beginFrame(to, kind);
    to.insert(to.end(), payload.begin(), payload.end());
    endFrame(to, checkedFrom);
}

std::vector<std::uint8_t> DrawingFileWriter::databasePayload() const
{
    headless::MemoryDwgFiler filer(AcDb::kFileFiler, nullptr);
    filer.writeUInt64(handleOf(m_db->clayer()));
    filer.writeUInt64(handleOf(m_db->celtype()));
    filer.writeUInt64(handleOf(m_db->textstyle()));
    filer.writeUInt64(handleOf(m_db->dimstyle()));
    const AcCmColor color = m_db->cecolor();
    filer.writeUInt32(color.getRGBM());
    filer.writeString(color.colorName());
    filer.writeString(color.bookName());
    filer.writeDouble(m_db->celtscale());
    filer.writeDouble(m_db->ltscale());
    filer.writeInt16(static_cast<Adesk::Int16>(m_db->celweight()));
    return filer.takeBytes();
}

void DrawingFileWriter::frameObject(const ObjectOut& object)
{
    // The same bytes a binary filer writes for these fields: little endian at their width,
    // doubles as their bits.
    const std::size_t checkedFrom = beginFrame(m_out, kObjectRecord);
    putLittle(m_out, object.handle, 8);
    putLittle(m_out, object.classIndex, 4);
    putLittle(m_out, object.owner, 8);
    putLittle(m_out,
              (object.hasGraphics ? kHasGraphics | kCompactGraphics : 0) | (object.hasTransform ? kHasTransform : 0),
              4);
    putLittle(m_out, object.data.size(), 4);
    m_out.insert(m_out.end(), object.data.begin(), object.data.end());
    putLittle(m_out, object.references.size(), 4);
    for (const ProxyReference& reference : object.references) {
        putLittle(m_out, reference.offset, 4);
        putLittle(m_out, static_cast<std::uint8_t>(reference.kind), 1);
    }
    if (object.hasGraphics) {
        putLittle(m_out, object.graphics.size(), 4);
        m_out.insert(m_out.end(), object.graphics.begin(), object.graphics.end());
    }
    if (object.hasTransform) {
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 4; ++column) {
                std::uint64_t bits = 0;
                const double value = object.transform(row, column);
                std::memcpy(&bits, &value, sizeof bits);
                putLittle(m_out, bits, 8);
            }
        }
    }
    endFrame(m_out, checkedFrom);
}

Acad::ErrorStatus DrawingFileWriter::write(std::vector<std::uint8_t>& out)
{
    const std::vector<AcDbObjectId> ids = headless::DatabaseAccess::objectIds(m_db);
    // The class table goes before the objects: a first pass over the objects in memory
    // numbers the classes in the order the objects first use them, so that every record is
    // framed straight into the file's bytes, without a second buffer to copy.
    std::vector<AcDbObjectId> filed;
    filed.reserve(ids.size());
    for (const AcDbObjectId& id : ids) {
        if (!id.isResident() || id.isErased())
            continue;  // erased objects are not filed; references to them keep their handles
        const AcDbObject* held = AcDbStub::objectOf(id);
        const ProxyData* proxy = held != nullptr ? ProxyAccess::dataOf(held) : nullptr;
        if (proxy != nullptr && proxy->cls.name.isEmpty())
            continue;  // a proxy that no drawing made has nothing to keep
        if (proxy != nullptr)
            classIndexOf(proxy->cls);
        else if (held != nullptr)
            classIndexOf(held->isA());
        filed.push_back(id);
    }
    const std::size_t classCount = m_classes.size();

    m_out.swap(out);
    m_out.clear();
    m_out.reserve(kHeaderBytes + filed.size() * kBytesPerObjectGuess);
    m_out.assign(std::begin(kMagic), std::end(kMagic));
    putLittle(m_out, kFormatMajor, 2);
    putLittle(m_out, kFormatMinor, 2);
    const auto frameCount = static_cast<std::uint32_t>(1 + m_classes.size() + filed.size() + 1);
    putLittle(m_out, frameCount, 4);
    putLittle(m_out, m_db->handseed().value(), 8);
    putLittle(m_out, 0, 4);  // flags, none defined
    putLittle(m_out, checksum(m_out.data(), m_out.size()), 4);

    frame(m_out, kDatabaseRecord, databasePayload());
    for (std::size_t i = 0; i < m_classes.size(); ++i) {
        headless::MemoryDwgFiler filer(AcDb::kFileFiler, nullptr);
        filer.writeUInt32(static_cast<Adesk::UInt32>(i));
        m_classes[i].writeTo(&filer);
        frame(m_out, kClassRecord, filer.bytes());
    }
    ObjectOut object;  // its buffers serve every object in turn
    for (const AcDbObjectId& id : filed) {
        ReadAccess access(id);
        const AcDbObject* obj = access.object();
        if (obj == nullptr) {
            ACHAR handle[17];
            id.handle().getIntoAsciiBuffer(handle);
            acutPrintf(L"\nThe drawing cannot be saved: object %s cannot be opened for read (%s).", handle,
                       acadErrorStatusText(access.status()));
            return access.status();
        }
        const Acad::ErrorStatus es = fileObject(obj, object);
        if (es != Acad::eOk) {
            ACHAR handle[17];
            obj->handle().getIntoAsciiBuffer(handle);
            acutPrintf(L"\nThe drawing cannot be saved: object %s (%s) could not be filed: %s.", handle,
                       obj->isA() != nullptr ? obj->isA()->name() : L"?", acadErrorStatusText(es));
            return es;
        }
        frameObject(object);
    }
    // Every class was numbered by the first pass; one that was not would stand nowhere.
    if (m_classes.size() != classCount)
        return Acad::eInvalidInput;
    std::vector<std::uint8_t> end;
    putLittle(end, m_frames, 4);
    frame(m_out, kEndRecord, end);
    out.swap(m_out);
    return Acad::eOk;
}

}  // namespace hostfile
