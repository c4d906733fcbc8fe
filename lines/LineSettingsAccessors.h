// The accessors every layout line offers for its display settings (LineDisplaySettings)
// and JSON blocks (LineJsonBlocks): declared in the class with
// QX_DECLARE_LINE_SETTINGS_ACCESSORS() and defined in its source with
// QX_DEFINE_LINE_SETTINGS_ACCESSORS(Class), whose implementation object keeps them as
// `display` and `json`. Getters check that the line is open for read, setters that it is
// open for write (with undo). What each promises:
// - the four layer names (JieDian text and boundary, ShouBian text and line) are kept as
//   given; a change is a change of what the line draws;
// - the four colour indices keep 0..256 and store anything outside as 0 (the entity's own
//   colour);
// - "节点基本信息", "收边信息" and "辅配件信息" are opaque text, kept as given; they change
//   nothing drawn.
#pragma once

#include "AcString.h"
#include "LineDisplaySettings.h"
#include "LineJsonBlocks.h"
#include "acadstrc.h"

#define QX_DECLARE_LINE_SETTINGS_ACCESSORS()                                                                           \
    AcString GetJieDianTextLayerName() const;                                                                          \
    Acad::ErrorStatus SetJieDianTextLayerName(const AcString& name);                                                   \
    AcString GetJieDianBoundaryLayerName() const;                                                                      \
    Acad::ErrorStatus SetJieDianBoundaryLayerName(const AcString& name);                                               \
    AcString GetShouBianTextLayerName() const;                                                                         \
    Acad::ErrorStatus SetShouBianTextLayerName(const AcString& name);                                                  \
    AcString GetShouBianLineLayerName() const;                                                                         \
    Acad::ErrorStatus SetShouBianLineLayerName(const AcString& name);                                                  \
    int GetJieDianTextColorIndex() const;                                                                              \
    Acad::ErrorStatus SetJieDianTextColorIndex(int index);                                                             \
    int GetJieDianBoundaryColorIndex() const;                                                                          \
    Acad::ErrorStatus SetJieDianBoundaryColorIndex(int index);                                                         \
    int GetShouBianTextColorIndex() const;                                                                             \
    Acad::ErrorStatus SetShouBianTextColorIndex(int index);                                                            \
    int GetShouBianLineColorIndex() const;                                                                             \
    Acad::ErrorStatus SetShouBianLineColorIndex(int index);                                                            \
    AcString GetNodeBasicJsonStr() const;                                                                              \
    Acad::ErrorStatus SetNodeBasicJsonStr(const AcString& json);                                                       \
    AcString GetShouBianJsonStr() const;                                                                               \
    Acad::ErrorStatus SetShouBianJsonStr(const AcString& json);                                                        \
    AcString GetAccessoryJsonStr() const;                                                                              \
    Acad::ErrorStatus SetAccessoryJsonStr(const AcString& json);

#define QX_LINE_SETTING_ACCESSOR(CLASS, NAME, TYPE, PARAM, FIELD, STORE, DRAWN)                                        \
    TYPE CLASS::Get##NAME() const                                                                                      \
    {                                                                                                                  \
        assertReadEnabled();                                                                                           \
        return m_imp->FIELD;                                                                                           \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::Set##NAME(PARAM value)                                                                    \
    {                                                                                                                  \
        assertWriteEnabled(true, true);                                                                                \
        m_imp->FIELD = STORE(value);                                                                                   \
        if (DRAWN)                                                                                                     \
            recordGraphicsModified();                                                                                  \
        return Acad::eOk;                                                                                              \
    }

#define QX_LINE_SETTING_AS_GIVEN(value) (value)

#define QX_DEFINE_LINE_SETTINGS_ACCESSORS(CLASS)                                                                       \
    QX_LINE_SETTING_ACCESSOR(CLASS, JieDianTextLayerName, AcString, const AcString&, display.jieDianTextLayerName,     \
                             QX_LINE_SETTING_AS_GIVEN, true)                                                           \
    QX_LINE_SETTING_ACCESSOR(CLASS, JieDianBoundaryLayerName, AcString, const AcString&,                               \
                             display.jieDianBoundaryLayerName, QX_LINE_SETTING_AS_GIVEN, true)                         \
    QX_LINE_SETTING_ACCESSOR(CLASS, ShouBianTextLayerName, AcString, const AcString&, display.shouBianTextLayerName,   \
                             QX_LINE_SETTING_AS_GIVEN, true)                                                           \
    QX_LINE_SETTING_ACCESSOR(CLASS, ShouBianLineLayerName, AcString, const AcString&, display.shouBianLineLayerName,   \
                             QX_LINE_SETTING_AS_GIVEN, true)                                                           \
    QX_LINE_SETTING_ACCESSOR(CLASS, JieDianTextColorIndex, int, int, display.jieDianTextColorIndex,                    \
                             LineDisplaySettings::ClampColorIndex, true)                                               \
    QX_LINE_SETTING_ACCESSOR(CLASS, JieDianBoundaryColorIndex, int, int, display.jieDianBoundaryColorIndex,            \
                             LineDisplaySettings::ClampColorIndex, true)                                               \
    QX_LINE_SETTING_ACCESSOR(CLASS, ShouBianTextColorIndex, int, int, display.shouBianTextColorIndex,                  \
                             LineDisplaySettings::ClampColorIndex, true)                                               \
    QX_LINE_SETTING_ACCESSOR(CLASS, ShouBianLineColorIndex, int, int, display.shouBianLineColorIndex,                  \
                             LineDisplaySettings::ClampColorIndex, true)                                               \
    QX_LINE_SETTING_ACCESSOR(CLASS, NodeBasicJsonStr, AcString, const AcString&, json.nodeBasic,                       \
                             QX_LINE_SETTING_AS_GIVEN, false)                                                          \
    QX_LINE_SETTING_ACCESSOR(CLASS, ShouBianJsonStr, AcString, const AcString&, json.shouBian,                         \
                             QX_LINE_SETTING_AS_GIVEN, false)                                                          \
    QX_LINE_SETTING_ACCESSOR(CLASS, AccessoryJsonStr, AcString, const AcString&, json.accessory,                       \
                             QX_LINE_SETTING_AS_GIVEN, false)
