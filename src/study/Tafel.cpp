#include "study/Tafel.h"

#include <algorithm>
#include <utility>

#include "study/Lastfaelle.h"

namespace rippenscheibe {

namespace {

// "a" to "z", then "aa" and so on.
std::string zeichenVon(std::ptrdiff_t stelle) {
    std::string zeichen;
    for (; stelle >= 0; stelle = stelle / 26 - 1)
        zeichen.insert(zeichen.begin(), static_cast<char>('a' + stelle % 26));
    return zeichen;
}

Tafelzelle zelle(const Tafelauftrag& auftrag, Pruefstand& stand, const Achsenwert& zeile,
                 const Achsenwert& spalte, const std::stop_token& halt) {
    const auto setze = [&](const Achsenwert& wert) {
        stand.beginne();
        for (const Achsenwert* achsenwert : {&zeile, &spalte, &wert})
            for (const auto& [feld, gesetzt] : achsenwert->setzt) stand.felder().setze(feld, gesetzt);
    };
    Tafelzelle z;
    bool vorherBestanden = false;
    for (std::size_t i = 0; i < auftrag.groesste.werte.size() && !halt.stop_requested(); ++i) {
        const Achsenwert& wert = auftrag.groesste.werte[i];
        setze(wert);
        const bool besteht = stand.besteht();
        if (besteht && !vorherBestanden) z.intervalle.emplace_back(wert.text, wert.text);
        if (besteht) z.intervalle.back().second = wert.text;
        vorherBestanden = besteht;
        if (besteht || !z.massgebend.empty()) continue;
        if (!z.intervalle.empty()) z.groesste = z.intervalle.front().second;
        setze(wert);
        z.massgebend = scheitertAn(stand.bewerte(), auftrag.regel);
    }
    if (z.massgebend.empty() && !z.intervalle.empty()) z.groesste = z.intervalle.front().second;
    return z;
}

}  // namespace

std::variant<Tafelauftrag, std::string> tafelauftrag(const Tafelwunsch& wunsch, Tafelauftrag rahmen) {
    for (const auto& [option, text] : {std::pair("--groesste", wunsch.groesste),
                                       {"--zeilen", wunsch.zeilen},
                                       {"--spalten", wunsch.spalten}})
        if (text.empty()) return std::string("Es fehlt ") + option + ".";
    const int feld = eingabeindex(wunsch.groesste.substr(0, wunsch.groesste.find(',')));
    if (feld < 0) return "unbekanntes Feld \"" + wunsch.groesste + "\"";
    const Feldart typ = eingabefeld(feld).typ;
    if (typ != Feldart::f64 && typ != Feldart::f32 && typ != Feldart::i16)
        return wunsch.groesste + " ist keine Zahl, die wachsen kann";
    const auto& bereich = eingabefeld(feld).bereich;
    if (wunsch.bis.empty() && !bereich) return std::string("Es fehlt --bis.");
    const std::string bis = wunsch.bis.empty() ? zahltext(bereich->bis) : wunsch.bis;
    for (const auto& [option, text] :
         {std::pair("--von", wunsch.von), {"--bis", bis}, {"--stufe", wunsch.stufe}})
        if (!dezimalreihe(text, text, "1"))
            return std::string(option) + ": \"" + text + "\" ist keine Zahl mit Dezimalpunkt";
    const std::string suche = wunsch.groesste + "=" + wunsch.von + ":" + bis + ":" + wunsch.stufe;
    for (auto& [achse, text] : {std::pair(&rahmen.groesste, suche),
                                {&rahmen.zeilen, wunsch.zeilen},
                                {&rahmen.spalten, wunsch.spalten}}) {
        auto gelesen = achseAus(text, wunsch.grenzen);
        if (auto* fehler = std::get_if<std::string>(&gelesen)) return std::move(*fehler);
        *achse = std::get<Achse>(std::move(gelesen));
    }
    constexpr std::size_t hoechstens = 1'000'000;
    if (rahmen.zeilen.werte.size() > hoechstens / rahmen.spalten.werte.size())
        return "die Tafel hat mehr als " + std::to_string(hoechstens) + " Zellen";
    const Raster raster({rahmen.groesste, rahmen.zeilen, rahmen.spalten});
    if (auto satz = doppeltesFeld(raster)) return std::move(*satz);
    if (auto satz = ueberschriebenesFeld(raster, rahmen.regel.lastfaelle)) return std::move(*satz);
    if (auto satz = geloeschteLast(raster, rahmen.vorlage); satz && !wunsch.trotzdem) return std::move(*satz);
    return rahmen;
}

Tafel bemessungstafel(const Tafelauftrag& auftrag, const Ausfuehrung& ausfuehrung) {
    const std::size_t breite = auftrag.spalten.werte.size();
    const std::size_t anzahl = auftrag.zeilen.werte.size() * breite;
    Tafel tafel;
    tafel.zellen.resize(auftrag.zeilen.werte.size(), std::vector<Tafelzelle>(breite));
    std::size_t fertig = 0;
    fliessband(
        ausfuehrung,
        [anzahl, i = std::size_t{0}]() mutable -> std::optional<std::size_t> {
            return i < anzahl ? std::optional(i++) : std::nullopt;
        },
        [&] { return Pruefstand(auftrag.vorlage, auftrag.materialien, auftrag.regel); },
        [&](Pruefstand& stand, std::size_t i) {
            return zelle(auftrag, stand, auftrag.zeilen.werte[i / breite], auftrag.spalten.werte[i % breite],
                         ausfuehrung.halt);
        },
        [&](Tafelzelle z) {
            tafel.zellen[fertig / breite][fertig % breite] = std::move(z);
            ++fertig;
            if (ausfuehrung.fortschritt) ausfuehrung.fortschritt({fertig, anzahl, fertig});
            return true;
        });
    tafel.vollstaendig = fertig == anzahl && !ausfuehrung.halt.stop_requested();
    return tafel;
}

std::vector<std::string> massgebende(const Tafel& tafel) {
    std::vector<std::string> alle;
    for (const auto& zeile : tafel.zellen)
        for (const Tafelzelle& z : zeile)
            if (!z.massgebend.empty() && std::find(alle.begin(), alle.end(), z.massgebend) == alle.end())
                alle.push_back(z.massgebend);
    return alle;
}

std::vector<std::vector<std::string>> tafelzeilen(const Tafelauftrag& auftrag, const Tafel& tafel,
                                                  char dezimal) {
    const std::vector<std::string> zeichen = massgebende(tafel);
    const auto mitZeichen = [&](std::string text) {
        std::replace(text.begin(), text.end(), '.', dezimal);
        return text;
    };
    std::vector<std::vector<std::string>> zeilen(1, {auftrag.zeilen.name + " \\ " + auftrag.spalten.name});
    for (const Achsenwert& spalte : auftrag.spalten.werte) zeilen[0].push_back(mitZeichen(spalte.text));
    for (std::size_t i = 0; i < tafel.zellen.size(); ++i) {
        auto& zeile = zeilen.emplace_back();
        zeile.push_back(mitZeichen(auftrag.zeilen.werte[i].text));
        for (const Tafelzelle& z : tafel.zellen[i]) {
            std::string text = z.besteht() ? mitZeichen(z.groesste) : "–";
            if (z.hatLoecher()) text += "*";
            const auto stelle = std::find(zeichen.begin(), zeichen.end(), z.massgebend);
            if (stelle != zeichen.end()) text.append(" ").append(zeichenVon(stelle - zeichen.begin()));
            zeile.push_back(text);
        }
    }
    return zeilen;
}

std::string tafellegende(const Tafel& tafel) {
    std::string text;
    const std::vector<std::string> zeichen = massgebende(tafel);
    for (std::size_t i = 0; i < zeichen.size(); ++i)
        text += zeichenVon(static_cast<std::ptrdiff_t>(i)) + "  " + zeichen[i] + "\n";
    bool loecher = false;
    bool striche = false;
    bool offen = false;
    for (const auto& zeile : tafel.zellen)
        for (const Tafelzelle& z : zeile) {
            loecher = loecher || z.hatLoecher();
            striche = striche || !z.besteht();
            offen = offen || z.massgebend.empty();
        }
    if (striche) text += "–  schon der Anfang besteht nicht\n";
    if (offen) text += "Werte ohne Zeichen: die Wand besteht bis zum Ende der Suche\n";
    if (loecher) text += "*  ein größerer Wert besteht wieder\n";
    return text;
}

}  // namespace rippenscheibe
