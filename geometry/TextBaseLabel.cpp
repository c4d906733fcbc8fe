// TextBaseLabel: storing the label in a data node and turning it into host texts.
#include "TextBaseLabel.h"

#include <cmath>

#include "data/DataNode.h"
#include "dbapserv.h"
#include "dbents.h"
#include "dbmain.h"

namespace {

AcDbObjectId StyleOrCurrent(const AcDbObjectId& textStyle)
{
    if (!textStyle.isNull())
        return textStyle;
    AcDbDatabase* db = acdbHostApplicationServices()->workingDatabase();
    return db != nullptr ? db->textstyle() : AcDbObjectId::kNull;
}

}  // namespace

void TextBaseLabel::SetValue(DataNode* node) const
{
    if (node == nullptr)
        return;
    node->SetValue(L"label", m_label);
    node->SetValue(L"pos", m_pos);
    node->SetValue(L"height", m_height);
    node->SetValue(L"dir", m_dir);
    node->SetValue(L"extension", m_extension);
    node->SetValue(L"bVisible", m_visible);
}

void TextBaseLabel::GetValue(DataNode* node)
{
    if (node == nullptr)
        return;
    node->GetValue(L"label", m_label);
    node->GetValue(L"pos", m_pos);
    node->GetValue(L"height", m_height);
    node->GetValue(L"dir", m_dir);
    node->GetValue(L"extension", m_extension);
    node->GetValue(L"bVisible", m_visible);
}

AcDbMText* TextBaseLabel::CreateMText(const AcDbObjectId& textStyle) const
{
    return CreateText(m_pos, textStyle, AcDbMText::kMiddleCenter);
}

AcDbMText* TextBaseLabel::CreateText(const AcGePoint3d& location, const AcDbObjectId& textStyle,
                                     AcDbMText::AttachmentPoint attachment) const
{
    if (m_label.isEmpty())
        return nullptr;
    auto* text = new AcDbMText();
    text->setLocation(location);
    text->setContents(m_label.kwszPtr());
    text->setTextHeight(m_height);
    text->setFlowDirection(AcDbMText::kByStyle);
    text->setAttachment(attachment);
    text->setTextStyle(StyleOrCurrent(textStyle));
    text->setDirection(GetTextDirX());
    return text;
}

AcDbText* TextBaseLabel::CreateDbText(const AcDbObjectId& textStyle) const
{
    if (m_label.isEmpty())
        return nullptr;
    auto* text = new AcDbText();
    AcDbDatabase* db = acdbHostApplicationServices()->workingDatabase();
    text->setDatabaseDefaults(db);
    text->setTextString(m_label.kwszPtr());
    text->setHeight(m_height);
    text->setTextStyle(StyleOrCurrent(textStyle));
    const AcGeVector3d dir = GetTextDirX();
    text->setRotation(std::atan2(dir.y, dir.x));
    text->setPosition(m_pos);
    text->setVerticalMode(AcDb::kTextVertMid);
    text->setHorizontalMode(AcDb::kTextCenter);
    text->setAlignmentPoint(m_pos);
    text->adjustAlignment(db);
    return text;
}

void TextBaseLabel::TransformBy(const AcGeMatrix3d& m)
{
    m_pos.transformBy(m);
    m_dir.transformBy(m);
    m_height *= m.scale();
}

AcGeVector3d TextBaseLabel::GetTextDirX() const
{
    return m_dir;
}

void TextBaseLabel::SetTextDirX(const AcGeVector3d& dir)
{
    m_dir = dir;
}
