#include "report/sections/Abschnitte.h"

namespace rippenscheibe {

void berichtTeil3(Berichtsbau& b) {
    b.neu(Seitenkopfdruck{});
    randbedingungen(b);
}

}  // namespace rippenscheibe
