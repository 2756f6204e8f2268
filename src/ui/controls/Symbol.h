#pragma once

#include <QIcon>
#include <QString>

namespace rippenscheibe {

// The delivered picture ":/icons/NAME.svg" as an icon, drawn at each size by the linked SVG renderer: icon
// plug-ins of the platform, which may be missing, are not asked.
QIcon symbol(const QString& name);

}  // namespace rippenscheibe
