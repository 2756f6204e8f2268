#pragma once

#include <string_view>

#include "report/Bericht.h"

namespace rippenscheibe {

// Where the words of the result view differ from those of the printed report. An empty remark means
// that the remark stands at the end of the line before.
struct Fassung {
    std::string_view maskeNennlaenge1;
    std::string_view erhoehung;
    std::string_view keineErhoehung;
    std::string_view formelSenkrecht;
    std::string_view ueberschrift42;
    std::string_view vereinfachteLagesicherheit;
    std::string_view nachFedersteifigkeit;
    std::string_view bemerkungFedersteifigkeit;
    std::string_view nachAnkertragfaehigkeit;
    std::string_view nachBetonanker;
    std::string_view bemerkungBetonanker;
};

const Fassung& fassung(Form form);

}  // namespace rippenscheibe
