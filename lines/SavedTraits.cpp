// SavedTraits: taking and restoring the sub-entity traits.
#include "SavedTraits.h"

#include "AcGiSubEntityTraits.h"

SavedTraits::SavedTraits(AcGiSubEntityTraits& traits)
    : m_traits(traits), m_trueColor(traits.trueColor()), m_layer(traits.layerId()), m_linetype(traits.lineTypeId()),
      m_fill(traits.fillType()), m_lineWeight(traits.lineWeight()), m_linetypeScale(traits.lineTypeScale()),
      m_thickness(traits.thickness())
{}

void SavedTraits::Restore()
{
    m_traits.setLayer(m_layer);
    m_traits.setTrueColor(m_trueColor);
    m_traits.setLineType(m_linetype);
    m_traits.setFillType(m_fill);
    m_traits.setLineWeight(m_lineWeight);
    m_traits.setLineTypeScale(m_linetypeScale);
    m_traits.setThickness(m_thickness);
}
