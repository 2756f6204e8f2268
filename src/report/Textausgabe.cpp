#include "report/Textausgabe.h"

namespace rippenscheibe {

std::string alsText(const Fliesstext& text) {
    std::string ausgabe;
    for (const Absatz& absatz : text) {
        for (const Textlauf& lauf : absatz.laeufe) ausgabe += lauf.text;
        ausgabe += '\n';
    }
    return ausgabe;
}

}  // namespace rippenscheibe
