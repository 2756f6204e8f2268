#include "trace/Formel.h"

#include <algorithm>
#include <vector>

namespace rippenscheibe {

namespace {

using herleitung::Graph;
using herleitung::Knoten;
using herleitung::Op;
using herleitung::Ort;

enum Rang { strich = 1, punkt = 2, potenz = 3, blatt = 4 };

Rang rang(const Knoten& k) {
    switch (k.op) {
        case Op::plus:
        case Op::minus:
        case Op::negativ:
            return strich;
        case Op::mal:
        case Op::durch:
            return punkt;
        case Op::hoch:
            return potenz;
        default:
            return blatt;
    }
}

class Schreiber {
  public:
    Schreiber(const Graph& graph, const Schreibweise& weise) : graph_(graph), weise_(weise) {}

    std::string schreibe(Ort ort) const {
        const Knoten& k = knoten(ort);
        switch (k.op) {
            case Op::plus:
                return zweistellig(k, " + ", strich, rechts(k, strich));
            case Op::minus:
                return zweistellig(k, " - ", strich, punkt);
            case Op::mal:
                return zweistellig(k, weise_.mal, punkt, rechts(k, punkt));
            case Op::durch:
                return zweistellig(k, weise_.durch, punkt, potenz);
            case Op::hoch:
                return zweistellig(k, weise_.hoch, blatt, blatt);
            case Op::negativ:
                return "-" + operand(k.a, punkt);
            case Op::wurzel:
                return aufruf(weise_.wurzel, k);
            case Op::sinus:
                return aufruf("sin", k);
            case Op::betrag:
                return aufruf(weise_.betrag, k);
            case Op::ganz:
                return aufruf(weise_.ganz, k);
            case Op::gerundet:
                return "rund(" + schreibe(k.a) + std::string(weise_.trenner) + std::to_string(k.b) + ")";
            case Op::kleinstes:
                return liste("min(", k);
            case Op::groesstes:
                return liste("max(", k);
            default:
                return weise_.blatt(ort);
        }
    }

  private:
    const Knoten& knoten(Ort ort) const { return graph_.knoten[static_cast<std::size_t>(ort)]; }

    std::string operand(Ort ort, Rang mindestens) const {
        std::string text = schreibe(ort);
        const bool negativ = !text.empty() && text.front() == '-';
        return rang(knoten(ort)) < mindestens || (negativ && mindestens > strich) ? "(" + text + ")" : text;
    }
    // On paper a + (b - c) and a · (b · c) need no brackets.
    Rang rechts(const Knoten& k, Rang eigener) const {
        const Op rechter = knoten(k.b).op;
        const bool frei =
            !weise_.bitgenau && (k.op == Op::plus ? rechter != Op::negativ : rechter == Op::mal);
        return frei ? eigener : static_cast<Rang>(eigener + 1);
    }
    std::string zweistellig(const Knoten& k, std::string_view zeichen, Rang links, Rang rechts) const {
        std::string text = operand(k.a, links);
        text += zeichen;
        return text += operand(k.b, rechts);
    }
    std::string aufruf(std::string_view name, const Knoten& k) const {
        return std::string(name) + "(" + schreibe(k.a) + ")";
    }
    std::string liste(std::string_view anfang, const Knoten& k) const {
        std::string text(anfang);
        for (Ort i = k.a; i < k.b; ++i) {
            if (i > k.a) text += weise_.trenner;
            text += schreibe(graph_.argumente[static_cast<std::size_t>(i)]);
        }
        return text + ")";
    }

    const Graph& graph_;
    const Schreibweise& weise_;
};

class Sammler {
  public:
    Sammler(const Graph& graph, const std::function<void(Ort)>& routine) : graph_(graph), routine_(routine) {}

    void besuche(Ort ort) {
        if (ort == herleitung::keiner) return;
        const Knoten& k = graph_.knoten[static_cast<std::size_t>(ort)];
        if (k.op == Op::kleinstes || k.op == Op::groesstes) {
            for (Ort i = k.a; i < k.b; ++i) besuche(graph_.argumente[static_cast<std::size_t>(i)]);
        } else if (!istBlatt(k.op)) {
            besuche(k.a);
            const bool zweistellig = k.op == Op::hoch || (k.op >= Op::plus && k.op <= Op::durch);
            if (zweistellig) besuche(k.b);
        } else if (k.op != Op::zahl && std::find(gesehen_.begin(), gesehen_.end(), ort) == gesehen_.end()) {
            gesehen_.push_back(ort);
            routine_(ort);
        }
    }

  private:
    const Graph& graph_;
    const std::function<void(Ort)>& routine_;
    std::vector<Ort> gesehen_;
};

}  // namespace

bool istBlatt(Op op) { return op < Op::plus; }

std::string formel(const Graph& graph, Ort ausdruck, const Schreibweise& weise) {
    return Schreiber(graph, weise).schreibe(ausdruck);
}

void jederOperand(const Graph& graph, Ort ausdruck, const std::function<void(Ort)>& routine) {
    Sammler(graph, routine).besuche(ausdruck);
}

}  // namespace rippenscheibe
