// AcDbEntity: the host's standard list lines (see EntityListing.h for the format).
#include "AcDbEntity.h"
#include "AcDbImpEntity.h"
#include "EntityDatabase.h"
#include "EntityListing.h"
#include "acutads.h"

namespace {

const ACHAR* standardColorName(int index)
{
    static const ACHAR* const kNames[] = {L"red", L"yellow", L"green", L"cyan", L"blue", L"magenta", L"white"};
    return index >= 1 && index <= 7 ? kNames[index - 1] : nullptr;
}

AcString colorText(const AcCmColor& color)
{
    AcString text;
    if (color.isByBlock())
        return AcString(L"BYBLOCK");
    if (color.isNone())
        return AcString(L"none");
    if (color.isForeground())
        return AcString(L"7 (white)");
    if (color.isByColor()) {
        text.format(L"%d,%d,%d", color.red(), color.green(), color.blue());
        if (color.hasColorName())
            text.appendFormat(L" \"%s\"", color.colorName());
        return text;
    }
    const int index = color.colorIndex();
    const ACHAR* name = standardColorName(index);
    if (name != nullptr)
        text.format(L"%d (%s)", index, name);
    else
        text.format(L"%d", index);
    return text;
}

bool isByLayerLinetype(const AcString& name)
{
    return name.isEmpty() || name.compareNoCase(L"BYLAYER") == 0;
}

}  // namespace

void AcDbEntity::subList() const
{
    assertReadEnabled();
    const AcRxClass* cls = isA();
    const ACHAR* dxfName = cls != nullptr && cls->dxfName() != nullptr ? cls->dxfName()
                           : cls != nullptr                            ? cls->name()
                                                                       : L"ENTITY";
    acutPrintf(L"\n%*s    Layer: \"%s\"", hostents::kListLabelWidth, dxfName,
               hostents::recordName(m_entityImp->m_layerId).kwszPtr());

    AcString blockName;
    switch (hostents::spaceOf(ownerId(), blockName)) {
    case hostents::SpaceKind::kModel:
        hostents::listNote(AcString(L"Space: Model space"));
        break;
    case hostents::SpaceKind::kPaper:
        hostents::listNote(AcString(L"Space: Paper space"));
        break;
    case hostents::SpaceKind::kBlock:
        hostents::listNote(AcString(L"Block: \"") + blockName + L"\"");
        break;
    case hostents::SpaceKind::kNone:
        break;
    }

    const AcCmColor& color = m_entityImp->m_color;
    if (!color.isByLayer())
        hostents::listNote(AcString(L"Color: ") + colorText(color));
    const AcString linetypeName = hostents::recordName(m_entityImp->m_linetypeId);
    if (!isByLayerLinetype(linetypeName))
        hostents::listNote(AcString(L"Linetype: \"") + linetypeName + L"\"");
    if (m_entityImp->m_visibility == AcDb::kInvisible)
        hostents::listNote(AcString(L"Invisible"));

    ACHAR handleText[20] = {0};
    handle().getIntoAsciiBuffer(handleText, sizeof handleText / sizeof handleText[0]);
    hostents::listNote(AcString(L"Handle = ") + handleText);
}
