#include "trace/Zeichen.h"

#include <array>
#include <map>
#include <span>
#include <string>

namespace rippenscheibe {

namespace {

constexpr std::string_view vereinfacht = "DIN 1052 (2008), 12.2 bis 12.8";
constexpr std::string_view genau = "DIN 1052 (2008), Anhang G.2.2";
constexpr std::string_view kombination = "DIN 1052 (2008), 8.7.7";

// # stands for the side.
struct Zeile {
    std::string_view name;
    std::string_view zeichen;
    std::string_view quelle = {};
};

// clang-format off
constexpr auto zeilen = std::to_array<Zeile>({
    // system and sheathing
    {"Wandlaenge",          "l"},
    {"Wandhoehe",           "h"},
    {"Rippenabstand",       "a_{r}"},
    {"bRandrippe",          "b_{Rand}"},
    {"bInnenrippe",         "b_{Innen}"},
    {"bKopfFussrippe",      "b_{Fuß}"},
    {"hRandrippe",          "h_{Rand}"},
    {"hInnenrippe",         "h_{Innen}"},
    {"Plattendicke#",       "t_{Platte,#}"},
    {"Plattenbreite#",      "l_{p,#}"},
    // fasteners
    {"av#",                 "a_{v,#}"},
    {"d#",                  "d_{#}"},
    {"ln#",                 "l_{n,#}"},
    {"fuk#",                "f_{u,k,#}"},
    {"dk#",                 "d_{k,#}"},
    {"lg#",                 "l_{g,#}"},
    // anchors and loads
    {"AnzahlAnker",         "n_{Anker}"},
    {"AnzahlAnkerNaegel",   "n_{Nagel}"},
    {"RdAnker",             "R_{d,Anker}"},
    {"kserAnker",           "K_{ser,Anker}"},
    {"Fvk",                 "F_{v,k}"},
    {"gk",                  "g_{k}"},
    {"qk",                  "q_{k}"},
    {"wk",                  "w_{k}"},
    {"Fcgk",                "F_{c,g,k}"},
    {"Fcqk",                "F_{c,q,k}"},
    {"gkWand",              "g_{k,Wand}"},
    {"beta",                "β"},
    // derived values
    {"t#",                  "t_{#}"},
    {"Fvd",                 "F_{v,d}"},
    {"Fcgd",                "F_{c,g,d}"},
    {"Fcqd",                "F_{c,q,d}"},
    {"gd",                  "g_{d}"},
    {"qd",                  "q_{d}"},
    {"wd",                  "w_{d}"},
    {"ARandrippe",          "A_{Rand}"},
    {"AInnenrippe",         "A_{Innen}"},
    {"AefLinks",            "A_{ef,links}"},
    {"AefRechts",           "A_{ef,rechts}"},
    {"AefRandrippe",        "A_{ef,Rand}"},
    {"AefInnenrippe",       "A_{ef,Innen}"},
    {"WzRandrippe",         "W_{z,Rand}"},
    {"WzInnenrippe",        "W_{z,Innen}"},
    {"WyRandrippe",         "W_{y,Rand}"},
    {"WyInnenrippe",        "W_{y,Innen}"},
    {"ARandrippeGerundet",  "A_{Rand,gerundet}"},
    {"WzRandrippeGerundet", "W_{z,Rand,gerundet}"},
    {"WyRandrippeGerundet", "W_{y,Rand,gerundet}"},
    {"AnzahlRippen",        "n"},
    {"RippenabstandRest",   "a_{r,Rest}"},
    {"WBeplankung1",        "W_{Platte,1}"},
    {"GewichtHolz",         "G_{Holz}"},
    {"GewichtBeplankung#",  "G_{Platte,#}"},
    {"GewichtDaemmung",     "G_{Dämmung}"},
    {"GewichtGesamt",       "G"},
    {"DickeDaemmung",       "t_{Dämmung}"},
    // strengths
    {"kmodRippen",          "k_{mod,Rippen}"},
    {"kmod#",               "k_{mod,#}"},
    {"kmodVM#",             "k_{mod,VM,#}"},
    {"kmodOSB#",            "k_{mod,OSB,#}"},
    {"kmodGips#",           "k_{mod,Gips,#}"},
    {"kmodSpan#",           "k_{mod,Span,#}"},
    {"kmodEigen#",          "k_{mod,eigen,#}"},
    {"rhok",                "ρ_{k}"},
    {"fmk",                 "f_{m,k}"},
    {"fc0k",                "f_{c,0,k}"},
    {"ft0k",                "f_{t,0,k}"},
    {"fc90k",               "f_{c,90,k}"},
    {"E0mean",              "E_{0,mean}"},
    {"E005",                "E_{0,05}"},
    {"GmeanHolz",           "G_{mean}"},
    {"G05Holz",             "G_{05}"},
    {"E90mean",             "E_{90,mean}"},
    {"E9005",               "E_{90,05}"},
    {"betac",               "β_{c}"},
    {"fmd",                 "f_{m,d}"},
    {"fc0d",                "f_{c,0,d}"},
    {"fc90d",               "f_{c,90,d}"},
    {"ft0d",                "f_{t,0,d}"},
    {"fvk#",                "f_{v,k,#}"},
    {"fck#",                "f_{c,k,#}"},
    {"fmkBeplankung#",      "f_{m,k,#}"},
    {"rhok#",               "ρ_{k,#}"},
    {"Gmean#",              "G_{mean,#}"},
    {"G05_#",               "G_{05,#}"},
    {"Wichte#",             "γ_{#}"},
    {"fvd#",                "f_{v,d,#}"},
    {"fcd#",                "f_{c,d,#}"},
    {"fmdBeplankung#",      "f_{m,d,#}"},
    // one fastener
    {"Rd#",                 "R_{d,#}"},
    {"tvorh#",              "k_{t,vorh,#}",      vereinfacht},
    {"treq#",               "k_{t,req,#}",       vereinfacht},
    {"Myk#",                "M_{y,k,#}"},
    {"fhkPlatte#",          "f_{h,k,Platte,#}"},
    {"fhkRippe#",           "f_{h,k,Rippe,#}",   genau},
    {"betaFh#",             "β_{#}",             genau},
    {"AFaktor#",            "A_{#}",             vereinfacht},
    {"treqPlatte#",         "t_{req,Platte,#}",  vereinfacht},
    {"treqRippe#",          "t_{req,Rippe,#}",   vereinfacht},
    {"Rk#",                 "R_{k,#}",           vereinfacht},
    {"RkA#",                "R_{k,A,#}",         genau},
    {"RkB#",                "R_{k,B,#}",         genau},
    {"RkC#",                "R_{k,C,#}",         genau},
    {"RkD#",                "R_{k,D,#}",         genau},
    {"RkE#",                "R_{k,E,#}",         genau},
    {"RkF#",                "R_{k,F,#}",         genau},
    {"RdA#",                "R_{d,A,#}",         genau},
    {"RdB#",                "R_{d,B,#}",         genau},
    {"RdC#",                "R_{d,C,#}",         genau},
    {"RdD#",                "R_{d,D,#}",         genau},
    {"RdE#",                "R_{d,E,#}",         genau},
    {"RdF#",                "R_{d,F,#}",         genau},
    {"deltaRk#",            "ΔR_{k,#}"},
    {"deltaRd#",            "ΔR_{d,#}"},
    {"lef#",                "l_{ef,#}"},
    {"f1k#",                "f_{1,k,#}"},
    {"f2k#",                "f_{2,k,#}"},
    {"Rxk#",                "R_{x,k,#}"},
    {"Rxd",                 "R_{x,d,1}"},
    {"Rxd2",                "R_{x,d,2}"},
    {"kFaser#",             "k_{Faser,#}"},
    // the panel
    {"kv1",                 "k_{v1}"},
    {"kv2",                 "k_{v2}"},
    {"fv0d#",               "f_{v,0,d,#}"},
    {"fv0d",                "f_{v,0,d}"},
    {"fv90d#",              "f_{v,90,d,#}"},
    {"fv90d",               "f_{v,90,d}"},
    {"fv0d#Term1",          "f_{v,0,d,#,VM}"},
    {"fv0d#Term2",          "f_{v,0,d,#,Platte}"},
    {"fv0d#Term3",          "f_{v,0,d,#,Beulen}"},
    {"fv90d#Term1",         "f_{v,90,d,#,VM}"},
    {"fv90d#Term2",         "f_{v,90,d,#,Platte}"},
    {"fv90d#Term3",         "f_{v,90,d,#,Beulen}"},
    // actions
    {"sv0d",                "s_{v,0,d}"},
    {"sv90d",               "s_{v,90,d}"},
    {"FEdge",               "F_{Rand}"},
    {"AnteilRippen",        "α_{Rippen}"},
    {"AnteilBeplankung",    "α_{Platte}"},
    {"RdRippenGesamt",      "R_{d,Rippen}"},
    {"RdBeplankung",        "R_{d,Platte}"},
    {"nVM#",                "n_{VM,#}"},
    {"mdBeplankung",        "m_{d}"},
    {"SigmaBiegung",        "σ_{m,d,Platte}"},
    {"FcdStabilitaet",      "F_{c,d,g}"},
    {"FcdVeraenderlich",    "F_{c,d,q}"},
    {"FcdSchwelle",         "F_{c,d,Schwelle}"},
    {"Ftd",                 "F_{t,d}"},
    {"wdRippe",             "w_{d,Rippe}"},
    {"Myd",                 "M_{y,d}"},
    {"Faxd",                "F_{ax,d}"},
    {"RdRippe",             "R_{d,Rippe}"},
    {"RdRippenSumme",       "ΣR_{d,Rippe}"},
    // stability and proofs
    {"kc90",                "k_{c,90}"},
    {"iRandrippe",          "i"},
    {"lambda",              "λ"},
    {"lambdaRel",           "λ_{rel}"},
    {"kKnick",              "k"},
    {"kc",                  "k_{c}"},
    {"lambdaMRandrippe",    "λ_{rel,m,Rand}"},
    {"lambdaMInnenrippe",   "λ_{rel,m,Innen}"},
    {"kmRandrippe",         "k_{m,Rand}"},
    {"kmInnenrippe",        "k_{m,Innen}"},
    {"SigmaC90d",           "σ_{c,90,d}"},
    {"etaC90",              "η_{c,90}"},
    {"SigmaC0d",            "σ_{c,0,d}"},
    {"SigmaMd",             "σ_{m,d}"},
    {"etaStabilitaetDruck", "η_{Druck}"},
    {"etaStabilitaetBiegung", "η_{Biegung}"},
    {"etaStabilitaet",      "η_{Stabilität}"},
    {"etaSv0",              "η_{v,0}"},
    {"etaSv90",             "η_{v,90}"},
    {"etaKombi",            "η_{v,Kombi}",       kombination},
    {"sv0dKombi",           "s_{v,0,d,Kombi}",   kombination},
    {"sv90dKombi",          "s_{v,90,d,Kombi}",  kombination},
    {"fv0dKombi",           "f_{v,0,d,Kombi}",   kombination},
    {"fv90dKombi",          "f_{v,90,d,Kombi}",  kombination},
    {"SigmaT0d",            "σ_{t,0,d}"},
    {"etaT0",               "η_{t,0}"},
    {"etaBiegung",          "η_{m,Platte}"},
    {"etaHerausziehenRippe", "η_{ax,Rippe}"},
    {"maxEtaStabilitaet",   "max η_{Stabilität}"},
    {"maxEtaC90",           "max η_{c,90}"},
    {"maxEtaT0",            "max η_{t,0}"},
    {"etaHerausziehen",     "max η_{ax}"},
    {"maxSigmaC0d",         "max σ_{c,0,d}"},
    {"maxSigmaMd",          "max σ_{m,d}"},
    {"maxSigmaC90d",        "max σ_{c,90,d}"},
    {"maxSigmaT0d",         "max σ_{t,0,d}"},
    {"maxMyd",              "max M_{y,d}"},
    {"maxFcdSchwelle",      "max F_{c,d,Schwelle}"},
    {"maxFcdStabilitaet",   "max F_{c,d}"},
    {"maxFtd",              "max F_{t,d}"},
    {"maxFaxd",             "max F_{ax,d}"},
    // deformation
    {"rhoM#",               "ρ_{m,#}"},
    {"kser#",               "K_{ser,#}"},
    {"nVertikalRaender#",   "n_{v,#}"},
    {"nHorizontalRaender#", "n_{h,#}"},
    {"FvCharakt",           "F_{v}"},
    {"svCharakt",           "s_{v,0}"},
    {"SigmaC90Charakt",     "σ_{c,90}"},
    {"FtCharakt",           "F_{t}"},
    {"uVMGebrauch",         "u_{VM,G}"},
    {"uRippeGebrauch",      "u_{Rippe,G}"},
    {"uSchubGebrauch",      "u_{Schub,G}"},
    {"uSchwelleGebrauch",   "u_{Schwelle,G}"},
    {"uAnkerGebrauch",      "u_{Anker,G}"},
    {"uGesGebrauch",        "u_{ges,G}"},
    {"uZulGebrauch",        "u_{zul,G}"},
    {"uVMTragfaehigkeit",   "u_{VM,T}"},
    {"uRippeTragfaehigkeit", "u_{Rippe,T}"},
    {"uSchubTragfaehigkeit", "u_{Schub,T}"},
    {"uSchwelleTragfaehigkeit", "u_{Schwelle,T}"},
    {"uAnkerTragfaehigkeit", "u_{Anker,T}"},
    {"uGesTragfaehigkeit",  "u_{ges,T}"},
    {"uZulTragfaehigkeit",  "u_{zul,T}"},
    {"uVMSteifigkeit",      "u_{VM,S}"},
    {"uRippeSteifigkeit",   "u_{Rippe,S}"},
    {"uSchubSteifigkeit",   "u_{Schub,S}"},
    {"uSchwelleSteifigkeit", "u_{Schwelle,S}"},
    {"uAnkerSteifigkeit",   "u_{Anker,S}"},
    {"SteifigkeitGesamt",   "S_{ges}"},
    {"SteifigkeitOhneVM",   "S_{ohne VM}"},
    // anchorage
    {"Ftdst",               "F_{t,dst}"},
    {"Fbd",                 "F_{b,d}"},
    {"MStabSumme",          "M_{stab}"},
    {"MDstSumme",           "M_{dst}"},
    {"FStab",               "F_{stab}"},
    {"FDst",                "F_{dst}"},
    {"MStab",               "ΣM_{stab}"},
    {"MDst",                "ΣM_{dst}"},
    // spacings
    {"a1#",                 "a_{1,#}"},
    {"a2#",                 "a_{2,#}"},
    {"a3#",                 "a_{3,#}"},
    {"a4#",                 "a_{4,#}"},
    {"aRand#",              "a_{Rand,#}"},
    {"aPlatteUnbelastet#",  "a_{Platte,c,#}"},
    {"aPlatte#",            "a_{Platte,t,#}"},
});
// clang-format on

struct Eintrag {
    std::string zeichen;
    std::string_view quelle;
};

std::string mitSeite(std::string_view text, char seite) {
    std::string ergebnis(text);
    for (char& c : ergebnis) {
        if (c == '#') c = seite;
    }
    return ergebnis;
}

std::map<std::string, Eintrag, std::less<>> verzeichnis() {
    std::map<std::string, Eintrag, std::less<>> namen;
    for (const Zeile& zeile : zeilen) {
        for (const char seite : {'1', '2'})
            namen.try_emplace(mitSeite(zeile.name, seite),
                              Eintrag{mitSeite(zeile.zeichen, seite), zeile.quelle});
    }
    return namen;
}

}  // namespace

Feldzeichen feldzeichen(std::string_view name) {
    static const auto namen = verzeichnis();
    const auto treffer = namen.find(name);
    if (treffer == namen.end()) return {};
    return {treffer->second.zeichen, treffer->second.quelle};
}

}  // namespace rippenscheibe
