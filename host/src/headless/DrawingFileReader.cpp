// DrawingFileReader: header, sound records, class table, stubs, objects and proxies.
#include "DrawingFileReader.h"

#include <algorithm>
#include <exception>
#include <set>

#include "AcDbEntity.h"
#include "DrawingFormat.h"
#include "GraphicsCodec.h"
#include "acutads.h"
#include "db/AcDbImpObject.h"
#include "db/AcDbStub.h"
#include "db/DbChecks.h"
#include "dbproxy.h"
#include "headless/CommandLine.h"
#include "headless/DatabaseAccess.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/TextCodec.h"
#include "rxclass.h"

namespace hostfile {

namespace {

// A fuzzing build takes any checksum: a mutated record would otherwise stop at its frame
// and never reach the readers of its contents.
bool checksumMatches(const std::uint8_t* data, std::size_t size, std::uint64_t stored)
{
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
    (void)data;
    (void)size;
    (void)stored;
    return true;
#else
    return checksum(data, size) == stored;
#endif
}

constexpr std::size_t kHandleBytes = 8;
// A reference table entry: offset and kind.
constexpr std::size_t kReferenceEntryBytes = 5;
// Looking for the next sound record may check at most this many bytes per byte of file
// (plus a fixed allowance) before the reader gives up on the rest.
constexpr std::uint64_t kSearchWorkPerByte = 4;
constexpr std::uint64_t kSearchWorkAllowance = std::uint64_t(1) << 20;

std::uint64_t littleAt(const std::uint8_t* at, int bytes)
{
    std::uint64_t value = 0;
    for (int i = bytes; i-- > 0;)
        value = (value << 8) | at[i];
    return value;
}

std::wstring hex(Adesk::UInt64 handle)
{
    ACHAR text[17];
    AcDbHandle(handle).getIntoAsciiBuffer(text);
    return text;
}

AcDbObjectId idFor(AcDbDatabase* db, Adesk::UInt64 handle)
{
    AcDbObjectId id;
    if (handle != 0)
        db->getAcDbObjectId(id, true, AcDbHandle(handle));
    return id;
}

// Takes an object out of the database again, leaving its handle free for a proxy.
void discard(AcDbObject* obj)
{
    AcDbImpObject::of(obj)->detach();
    delete obj;
}

}  // namespace

void DrawingFileReader::note(const std::wstring& message)
{
    m_report.messages.push_back(message);
    acutPrintf(L"\n%s", message.c_str());
}

void DrawingFileReader::damaged(const Frame& frame, const std::wstring& why)
{
    std::wstring what = L"Record at byte " + std::to_wstring(frame.offset);
    if (frame.kind == kObjectRecord && frame.offset + kFrameHeadBytes + kHandleBytes <= m_bytes.size()) {
        const Adesk::UInt64 handle = littleAt(m_bytes.data() + frame.offset + kFrameHeadBytes, kHandleBytes);
        what += L" (object " + hex(handle) + L")";
    }
    note(what + L": " + why + L"; skipped.");
    ++m_report.skippedRecords;
    m_report.complete = false;
}

Acad::ErrorStatus DrawingFileReader::readHeader()
{
    if (m_bytes.size() < sizeof kMagic || !std::equal(kMagic, kMagic + sizeof kMagic, m_bytes.begin())) {
        note(L"The file is not a drawing file of this host.");
        return Acad::eUnsupportedFileFormat;
    }
    if (m_bytes.size() < kHeaderBytes) {
        note(L"The drawing file ends inside its header (" + std::to_wstring(m_bytes.size()) + L" bytes).");
        return Acad::eUnsupportedFileFormat;
    }
    const std::uint8_t* header = m_bytes.data();
    const auto major = static_cast<std::uint16_t>(littleAt(header + 8, 2));
    const auto minor = static_cast<std::uint16_t>(littleAt(header + 10, 2));
    if (major == 0 || major > kFormatMajor) {
        note(L"The drawing file has format version " + std::to_wstring(major) + L"." + std::to_wstring(minor) +
             L"; this host reads version " + std::to_wstring(kFormatMajor) + L" files.");
        return Acad::eInvalidDwgVersion;
    }
    if (!checksumMatches(header, kHeaderBytes - 4, littleAt(header + kHeaderBytes - 4, 4))) {
        note(L"The drawing file's header is damaged; handles are taken from the objects.");
        m_report.complete = false;
        return Acad::eOk;
    }
    m_handseed = littleAt(header + 16, 8);
    return Acad::eOk;
}

bool DrawingFileReader::frameAt(std::size_t pos, Frame& frame, std::wstring& why, bool& ranOut)
{
    ranOut = false;
    frame = Frame();
    frame.offset = pos;
    const std::size_t size = m_bytes.size();
    if (size - pos < kFrameHeadBytes + kFrameTailBytes) {
        why = L"the file ends inside the record";
        ranOut = true;
        return false;
    }
    const std::uint8_t* at = m_bytes.data() + pos;
    frame.kind = at[4];
    if (littleAt(at, 4) != kRecordMarker) {
        why = L"no record starts there";
        return false;
    }
    const std::uint64_t length = littleAt(at + 5, 4);
    if (length > size - pos - kFrameHeadBytes - kFrameTailBytes) {
        why = L"its length (" + std::to_wstring(length) + L" bytes) runs past the end of the file";
        ranOut = true;
        return false;
    }
    const std::size_t checked = 1 + 4 + static_cast<std::size_t>(length);
    if (!checksumMatches(at + 4, checked, littleAt(at + 4 + checked, 4))) {
        m_searchWork += checked;
        why = L"its checksum does not match its contents";
        return false;
    }
    frame.payload = at + kFrameHeadBytes;
    frame.size = static_cast<std::size_t>(length);
    return true;
}

std::size_t DrawingFileReader::nextMarker(std::size_t from) const
{
    const std::uint8_t marker[4] = {0x51, 0x58, 0x52, 0x1A};
    const auto begin = m_bytes.begin() + static_cast<std::ptrdiff_t>(std::min(from, m_bytes.size()));
    const auto found = std::search(begin, m_bytes.end(), marker, marker + 4);
    return found == m_bytes.end() ? std::string::npos : static_cast<std::size_t>(found - m_bytes.begin());
}

void DrawingFileReader::findFrames()
{
    const std::uint64_t workLimit = kSearchWorkPerByte * m_bytes.size() + kSearchWorkAllowance;
    std::size_t pos = kHeaderBytes;
    bool sawEnd = false;
    while (pos < m_bytes.size()) {
        Frame frame;
        std::wstring why;
        bool ranOut = false;
        if (frameAt(pos, frame, why, ranOut)) {
            m_frames.push_back(frame);
            pos += kFrameHeadBytes + frame.size + kFrameTailBytes;
            if (frame.kind == kEndRecord) {
                sawEnd = true;
                break;
            }
            continue;
        }
        damaged(frame, why);
        if (m_searchWork > workLimit) {
            note(L"The drawing file is too damaged to look further; the rest of it is left out.");
            break;
        }
        pos = nextMarker(pos + 1);
    }
    if (!sawEnd) {
        note(L"The drawing file ends early: it has no end record. What came before is kept.");
        m_report.complete = false;
    } else if (pos < m_bytes.size()) {
        note(std::to_wstring(m_bytes.size() - pos) + L" bytes after the end of the drawing were ignored.");
    }
}

void DrawingFileReader::readClassFrame(const Frame& frame)
{
    headless::MemoryDwgFiler filer(std::vector<std::uint8_t>(frame.payload, frame.payload + frame.size),
                                   AcDb::kFileFiler, nullptr);
    Adesk::UInt32 index = 0;
    ClassRecord cls;
    filer.readUInt32(&index);
    if (filer.filerStatus() != Acad::eOk || cls.readFrom(&filer) != Acad::eOk) {
        damaged(frame, L"its class record cannot be read");
        return;
    }
    if (!m_classes.emplace(index, cls).second)
        damaged(frame, L"class number " + std::to_wstring(index) + L" is described twice");
}

bool DrawingFileReader::parseObject(const Frame& frame, ObjectIn& object)
{
    headless::MemoryDwgFiler filer(std::vector<std::uint8_t>(frame.payload, frame.payload + frame.size),
                                   AcDb::kFileFiler, nullptr);
    object.offset = frame.offset;
    Adesk::UInt32 flags = 0;
    Adesk::UInt32 length = 0;
    Adesk::UInt32 count = 0;
    filer.readUInt64(&object.handle);
    filer.readUInt32(&object.classIndex);
    filer.readUInt64(&object.owner);
    filer.readUInt32(&flags);
    filer.readUInt32(&length);
    bool sound = filer.filerStatus() == Acad::eOk && object.handle != 0 && length <= filer.remaining();
    if (sound) {
        object.data.resize(length);
        filer.readBytes(object.data.data(), length);
        filer.readUInt32(&count);
        sound = filer.filerStatus() == Acad::eOk && count <= filer.remaining() / kReferenceEntryBytes;
    }
    std::size_t next = 0;
    for (Adesk::UInt32 i = 0; sound && i < count; ++i) {
        ProxyReference reference;
        Adesk::UInt8 kind = 0;
        filer.readUInt32(&reference.offset);
        filer.readUInt8(&kind);
        sound = filer.filerStatus() == Acad::eOk && kind <= AcDb::kHardOwnershipRef && reference.offset >= next &&
            static_cast<std::uint64_t>(reference.offset) + kHandleBytes <= object.data.size();
        if (sound)
            reference.kind = static_cast<AcDb::ReferenceType>(kind);
        next = reference.offset + kHandleBytes;
        object.references.push_back(reference);
    }
    object.hasGraphics = (flags & kHasGraphics) != 0;
    object.compactGraphics = (flags & kCompactGraphics) != 0;
    if (sound && object.hasGraphics) {
        sound = filer.readUInt32(&length) == Acad::eOk && length <= filer.remaining();
        if (sound) {
            object.graphics.resize(length);
            filer.readBytes(object.graphics.data(), length);
        }
    }
    object.hasTransform = (flags & kHasTransform) != 0;
    if (sound && object.hasTransform) {
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 4; ++column)
                filer.readDouble(&object.transform.entry[row][column]);
    }
    if (!sound || filer.filerStatus() != Acad::eOk) {
        damaged(frame, L"its contents do not add up");
        return false;
    }
    return true;
}

bool DrawingFileReader::makeProxy(ObjectIn& object, const ClassRecord& cls, bool asEntity, AcDbDatabase* db)
{
    const auto fill = [&](ProxyData& data, std::size_t start) {
        if (!data.takeFrom(object.data, start, object.references))
            return false;
        data.cls = cls;
        for (ProxyReference& reference : data.references)
            reference.id = idFor(db, littleAt(data.bytes.data() + reference.offset, kHandleBytes));
        if (object.hasGraphics) {
            headless::MemoryDwgFiler filer(object.graphics, AcDb::kFileFiler, db);
            filer.setCreatesStubs(true);
            const GraphicsForm form = object.compactGraphics ? GraphicsForm::kCompact : GraphicsForm::kVerbose;
            data.hasGraphics = GraphicsCodec::read(&filer, object.graphics.size(), data.graphics, form) == Acad::eOk;
            if (!data.hasGraphics) {
                data.graphics.clear();
                note(L"The kept graphics of object " + hex(object.handle) + L" are damaged and were left out.");
            }
        }
        data.hasTransform = object.hasTransform;
        data.transform = object.transform;
        return true;
    };
    const AcDbHandle handle(object.handle);
    if (asEntity) {
        auto* proxy = new AcDbProxyEntity();
        AcDbObjectId id;
        if (headless::DatabaseAccess::addObjectWithHandle(db, proxy, handle, id) != Acad::eOk) {
            delete proxy;
            return false;
        }
        headless::MemoryDwgFiler filer(object.data, AcDb::kFileFiler, db);
        filer.setCreatesStubs(true);
        ProxyData& data = *ProxyAccess::dataOf(proxy);
        if (proxy->AcDbEntity::dwgInFields(&filer) == Acad::eOk && fill(data, static_cast<std::size_t>(filer.tell()))) {
            data.drawnWith = DrawnProperties::of(proxy);
            proxy->close();
            return true;
        }
        discard(proxy);  // the entity's own fields cannot be read: keep it as a plain object
    }
    auto* proxy = new AcDbProxyObject();
    AcDbObjectId id;
    if (headless::DatabaseAccess::addObjectWithHandle(db, proxy, handle, id) != Acad::eOk) {
        delete proxy;
        return false;
    }
    headless::MemoryDwgFiler filer(object.data, AcDb::kFileFiler, db);
    filer.setCreatesStubs(true);
    if (proxy->AcDbObject::dwgInFields(&filer) == Acad::eOk &&
        fill(*ProxyAccess::dataOf(proxy), static_cast<std::size_t>(filer.tell()))) {
        proxy->close();
        return true;
    }
    discard(proxy);
    return false;
}

void DrawingFileReader::readObject(ObjectIn& object, AcDbDatabase* db)
{
    const std::wstring handle = hex(object.handle);
    const auto known = m_classes.find(object.classIndex);
    if (known == m_classes.end()) {
        note(L"Object " + handle + L" names class number " + std::to_wstring(object.classIndex) +
             L", which the class table lacks; skipped.");
        ++m_report.skippedRecords;
        m_report.complete = false;
        return;
    }
    const ClassRecord& cls = known->second;
    const AcRxClass* loaded = acrxFindAcRxClass(cls.name.kwszPtr());
    AcRxObject* made = loaded != nullptr ? loaded->create() : nullptr;
    AcDbObject* obj = AcDbObject::cast(made);
    if (made != nullptr && obj == nullptr)
        delete made;
    bool asEntity = cls.derivesFrom(L"AcDbEntity");
    if (obj != nullptr) {
        asEntity = loaded->isDerivedFrom(AcDbEntity::desc());
        AcDbObjectId id;
        Acad::ErrorStatus es = headless::DatabaseAccess::addObjectWithHandle(db, obj, AcDbHandle(object.handle), id);
        if (es != Acad::eOk) {
            delete obj;
            note(L"Object " + handle + L" cannot take its handle (" + acadErrorStatusText(es) + L"); skipped.");
            ++m_report.skippedRecords;
            return;
        }
        std::wstring raised;
        try {
            headless::MemoryDwgFiler filer(object.data, AcDb::kFileFiler, db);
            filer.setCreatesStubs(true);
            es = obj->dwgIn(&filer);
            if (es == Acad::eOk && filer.remaining() != 0)
                es = Acad::eSomeInputDataLeftUnread;  // what it did not read would be lost
            if (es == Acad::eOk && object.hasTransform && AcDbEntity::cast(obj) != nullptr)
                AcDbEntity::cast(obj)->transformBy(object.transform);
        } catch (const std::exception& error) {
            es = Acad::eDwgObjectImproperlyRead;
            raised = headless::fromUtf8(error.what());
        }
        if (es == Acad::eOk) {
            obj->close();
            ++m_report.objects;
            return;
        }
        discard(obj);
        if (es == Acad::eMakeMeProxy) {
            note(L"Object " + handle + L" of class " + cls.name.kwszPtr() +
                 L" was written by a newer version of its class; kept as a proxy.");
        } else {
            note(L"Object " + handle + L" of class " + cls.name.kwszPtr() + L" could not be read (" +
                 (raised.empty() ? std::wstring(acadErrorStatusText(es)) : raised) + L"); kept as a proxy.");
        }
    } else {
        ProxyCount& count = m_proxyCounts[cls.name.kwszPtr()];
        count.application = cls.application();
        count.dxfName = cls.dxfName;
        ++count.count;
    }
    if (makeProxy(object, cls, asEntity, db)) {
        ++m_report.objects;
        ++m_report.proxies;
        return;
    }
    note(L"Object " + handle + L" holds too little data for an object; skipped.");
    ++m_report.skippedRecords;
    m_report.complete = false;
}

void DrawingFileReader::readDatabaseFrame(const Frame& frame, AcDbDatabase* db)
{
    headless::MemoryDwgFiler filer(std::vector<std::uint8_t>(frame.payload, frame.payload + frame.size),
                                   AcDb::kFileFiler, nullptr);
    Adesk::UInt64 clayer = 0, celtype = 0, textstyle = 0, dimstyle = 0;
    Adesk::UInt32 rgbm = 0;
    AcString colorName, bookName;
    double celtscale = 1.0, ltscale = 1.0;
    Adesk::Int16 celweight = AcDb::kLnWtByLayer;
    filer.readUInt64(&clayer);
    filer.readUInt64(&celtype);
    filer.readUInt64(&textstyle);
    filer.readUInt64(&dimstyle);
    filer.readUInt32(&rgbm);
    filer.readString(colorName);
    filer.readString(bookName);
    filer.readDouble(&celtscale);
    filer.readDouble(&ltscale);
    filer.readInt16(&celweight);
    if (filer.filerStatus() != Acad::eOk) {
        damaged(frame, L"its drawing settings cannot be read");
        return;
    }
    // Settings that name records the drawing lacks keep the standard ones.
    AcDbObjectId id;
    if (db->getAcDbObjectId(id, false, AcDbHandle(clayer)) == Acad::eOk)
        db->setClayer(id);
    if (db->getAcDbObjectId(id, false, AcDbHandle(celtype)) == Acad::eOk)
        db->setCeltype(id);
    if (db->getAcDbObjectId(id, false, AcDbHandle(textstyle)) == Acad::eOk)
        db->setTextstyle(id);
    if (db->getAcDbObjectId(id, false, AcDbHandle(dimstyle)) == Acad::eOk)
        db->setDimstyle(id);
    AcCmColor color;
    if (color.setRGBM(rgbm) == Acad::eOk) {
        if (!colorName.isEmpty())
            color.setNames(colorName.kwszPtr(), bookName.isEmpty() ? nullptr : bookName.kwszPtr());
        db->setCecolor(color);
    }
    db->setCeltscale(celtscale);
    db->setLtscale(ltscale);
    // A weight that is none of the host's keeps the standard one; the value is never held
    // as the enumeration it is not.
    if (hostdb::isValidLineWeight(celweight))
        db->setCelweight(static_cast<AcDb::LineWeight>(celweight));
    else
        note(L"The drawing's current lineweight (" + std::to_wstring(celweight) +
             L") is none of the host's; the standard one is kept.");
}

void DrawingFileReader::summarise()
{
    for (const auto& [name, count] : m_proxyCounts) {
        note(headless::formatHostString(L"Class %s (%s) of application \"%s\" is not loaded: %d object%s kept as "
                                        L"proxies.",
                                        name.c_str(), count.dxfName.kwszPtr(), count.application.kwszPtr(), count.count,
                                        count.count == 1 ? L"" : L"s"));
    }
}

Acad::ErrorStatus DrawingFileReader::read(AcDbDatabase*& db)
{
    db = nullptr;
    const Acad::ErrorStatus es = readHeader();
    if (es != Acad::eOk) {
        m_report.complete = false;
        return es;
    }
    findFrames();
    db = new AcDbDatabase(false);
    for (const Frame& frame : m_frames) {
        if (frame.kind == kClassRecord)
            readClassFrame(frame);
    }
    std::vector<ObjectIn> objects;
    std::set<Adesk::UInt64> handles;
    for (const Frame& frame : m_frames) {
        if (frame.kind != kObjectRecord)
            continue;
        ObjectIn object;
        if (!parseObject(frame, object))
            continue;
        if (!handles.insert(object.handle).second) {
            damaged(frame, L"its handle " + hex(object.handle) + L" belongs to an earlier object");
            continue;
        }
        objects.push_back(std::move(object));
    }
    // Every object's stub exists before any object is read: references resolve forwards too.
    for (const ObjectIn& object : objects)
        idFor(db, object.handle);
    for (ObjectIn& object : objects)
        readObject(object, db);
    for (const Frame& frame : m_frames) {
        if (frame.kind == kDatabaseRecord)
            readDatabaseFrame(frame, db);
    }
    // A reference whose object never arrived (erased before saving, or lost to damage)
    // names an erased object: walks over owners' lists pass it by.
    for (const AcDbObjectId& id : headless::DatabaseAccess::objectIds(db)) {
        if (!id.isResident())
            static_cast<AcDbStub*>(id)->setErased(true);
    }
    if (m_handseed != 0)
        headless::DatabaseAccess::raiseHandseed(db, AcDbHandle(m_handseed));
    summarise();
    return Acad::eOk;
}

}  // namespace hostfile
