#pragma once

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The part of simdjson that the batch reader uses, on nlohmann-json: for the cross build, where the library
// of the building machine does not fit.

namespace simdjson {

inline constexpr std::size_t SIMDJSON_PADDING = 0;
enum error_code { SUCCESS, FAILURE };

namespace dom {

class element;
struct ergebnis;
using glied = std::pair<std::string, element>;

// The members of an object in their order, repeated names too.
class object {
  public:
    inline ergebnis at_key(std::string_view name) const;
    const glied* begin() const { return von_; }
    const glied* end() const { return bis_; }

  private:
    friend class element;
    const glied* von_ = nullptr;
    const glied* bis_ = nullptr;
};

class element {
  public:
    nlohmann::json wert;
    std::vector<glied> glieder;  // of the outermost object

    error_code get(bool& ziel) const { return nimm(wert.is_boolean(), ziel); }
    error_code get(double& ziel) const { return nimm(wert.is_number(), ziel); }
    inline error_code get(object& ziel) const;
    error_code get(std::string_view& ziel) const {
        if (!wert.is_string()) return FAILURE;
        ziel = wert.get_ref<const std::string&>();
        return SUCCESS;
    }
    bool is_null() const { return wert.is_null(); }
    bool is_array() const { return wert.is_array(); }
    bool is_object() const { return wert.is_object(); }

  private:
    template <class T>
    error_code nimm(bool passt, T& ziel) const {
        if (passt) ziel = wert.get<T>();
        return passt ? SUCCESS : FAILURE;
    }
};

struct ergebnis {
    error_code fehler = FAILURE;
    element wert;
    error_code get(element& ziel) {
        if (fehler == SUCCESS) ziel = std::move(wert);
        return fehler;
    }
};

inline error_code element::get(object& ziel) const {
    ziel.von_ = glieder.data();
    ziel.bis_ = glieder.data() + glieder.size();
    return wert.is_object() ? SUCCESS : FAILURE;
}

inline ergebnis object::at_key(std::string_view name) const {
    for (const glied& g : *this)
        if (g.first == name) return {SUCCESS, g.second};
    return {};
}

class parser {
  public:
    ergebnis parse(const char* text, std::size_t laenge, bool /*kopieren*/) const {
        using Ereignis = nlohmann::json::parse_event_t;
        ergebnis e;
        std::string name;
        const auto merke = [&](int tiefe, Ereignis was, nlohmann::json& wert) {
            if (tiefe != 1) return true;
            if (was == Ereignis::key) name = wert.get<std::string>();
            if (was == Ereignis::value || was == Ereignis::object_end || was == Ereignis::array_end)
                e.wert.glieder.emplace_back(name, element{wert, {}});
            return true;
        };
        e.wert.wert = nlohmann::json::parse(text, text + laenge, merke, false);
        e.fehler = e.wert.wert.is_discarded() ? FAILURE : SUCCESS;
        return e;
    }
};

}  // namespace dom

inline std::string minify(const dom::element& e) { return e.wert.dump(); }

}  // namespace simdjson
