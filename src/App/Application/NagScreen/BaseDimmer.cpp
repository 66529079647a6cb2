#include "App/Application/NagScreen/BaseDimmer.h"

namespace Ostrel::App::NagScreen {

BaseDimmer::BaseDimmer(QWidget* parent, QWidget* target, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_target(target)
{
    // A stylesheet background needs this on a plain QWidget.
    setAttribute(Qt::WA_StyledBackground);
    if (parent)
        resize(parent->size());
}

BaseDimmer::~BaseDimmer() = default;

std::vector<QString> BaseDimmer::FilePathParameters() const
{
    return {};
}

void BaseDimmer::Attach(QWidget* parent, QWidget* target)
{
    m_target = target;
    setParent(parent);
    if (parent)
        resize(parent->size());
}

QWidget* BaseDimmer::Target() const
{
    return m_target;
}

} // namespace Ostrel::App::NagScreen
