#include <memory>

#include "cli/Feldwerte.h"
#include "files/Positionsdatei.h"
#include "files/Zeichensatz.h"
#include "fuzz/Eingang.h"
#include "report/Bericht.h"
#include "report/Rtfausgabe.h"
#include "report/Textausgabe.h"
#include "run/Berechnungslauf.h"
#include "run/Zuweisen.h"

// The whole road of a position, from its bytes to text, RTF and JSON, findings or not.

using namespace rippenscheibe;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t laenge) {
    const auto w = std::make_unique<Wand>();
    liesPositionstext(dekodiert(fuzz::eingang(bytes, laenge)), *w);
    zuweisen(*w, grundmasse(*w));
    const Laufergebnis ergebnis = starte(*w, Hinweisbehandlung::uebergehen);
    for (const Form form : {Form::ansicht, Form::lang, Form::kurz}) {
        const Fliesstext text = fliesstext(bericht(*w, form, {}));
        fuzz::erwarte(!alsText(text).empty());
        const std::string rtf = alsRtf(text);
        fuzz::erwarte(rtf.starts_with("{\\rtf1") && rtf.find_last_of('}') != std::string::npos);
    }
    const std::string json = jsonZeile("x.rsw", *w, ergebnis == Laufergebnis::gerechnet);
    fuzz::erwarte(json.starts_with('{') && json.ends_with("}\n"));
    return 0;
}
