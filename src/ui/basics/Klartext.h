#pragma once

#include <QObject>

namespace rippenscheibe {

// Labels and tool tips show texts as they are. Much of what they show comes from files that others wrote:
// names of anchors, materials, projects, folders. Qt takes such a text for HTML when it looks like it, and
// would load the pictures it names. Installed on the application, this makes every label plain that does not
// say itself that it is rich text, tool tips and message boxes included.
class Klartext : public QObject {
    Q_OBJECT

  public:
    explicit Klartext(QObject* parent);

    bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace rippenscheibe
