// TextBaseLabel: one text annotation of an entity (an opening's title, a segment label):
// what it says, where it sits, how high, which way it reads, and whether it shows. The
// entity keeps it in its data tree and turns it into host texts for drawing and explode.
#pragma once

#include "AcString.h"
#include "dbid.h"
#include "dbmtext.h"
#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

class AcDbText;
class DataNode;

class TextBaseLabel {
public:
    static constexpr double kDefaultHeight = 300.0;

    TextBaseLabel() = default;
    TextBaseLabel(const TextBaseLabel&) = default;
    TextBaseLabel& operator=(const TextBaseLabel&) = default;
    virtual ~TextBaseLabel() = default;

    // The six fields under their keys ("label", "pos", "height", "dir", "extension",
    // "bVisible"); a null node does nothing, and a key the node lacks leaves its field.
    virtual void SetValue(DataNode* node) const;
    virtual void GetValue(DataNode* node);

    // New host texts owned by the caller, or null when the label is empty. A null style id
    // takes the working database's current text style.
    virtual AcDbMText* CreateMText(const AcDbObjectId& textStyle) const;
    virtual AcDbMText* CreateText(const AcGePoint3d& location, const AcDbObjectId& textStyle,
                                  AcDbMText::AttachmentPoint attachment) const;
    // A single-line text centred on pos.
    virtual AcDbText* CreateDbText(const AcDbObjectId& textStyle) const;

    // Moves pos, turns dir and scales height with m; never mirrors or normalises.
    virtual void TransformBy(const AcGeMatrix3d& m);
    virtual AcGeVector3d GetTextDirX() const;
    virtual void SetTextDirX(const AcGeVector3d& dir);

    const AcString& GetLabel() const { return m_label; }
    void SetLabel(const AcString& label) { m_label = label; }
    const AcGePoint3d& GetPosition() const { return m_pos; }
    void SetPosition(const AcGePoint3d& pos) { m_pos = pos; }
    double GetHeight() const { return m_height; }
    void SetHeight(double height) { m_height = height; }
    const AcString& GetExtension() const { return m_extension; }
    void SetExtension(const AcString& extension) { m_extension = extension; }
    bool IsVisible() const { return m_visible; }
    void SetVisible(bool visible) { m_visible = visible; }

private:
    AcString m_label;
    AcGePoint3d m_pos = AcGePoint3d::kOrigin;
    double m_height = kDefaultHeight;
    AcGeVector3d m_dir = AcGeVector3d::kXAxis;
    AcString m_extension;
    bool m_visible = false;
};
