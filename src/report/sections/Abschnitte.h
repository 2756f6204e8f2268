#pragma once

#include "report/Berichtsbau.h"

// The sections of the report by subject. `BerichtTeil1` to `BerichtTeil3` call them in their order.

namespace rippenscheibe {

void systemangaben(Berichtsbau& b, const Wand& w);                  // 1.1 to 1.3
void verbindungsmittelBeiderSeiten(Berichtsbau& b, const Wand& w);  // 1.4
void belastung(Berichtsbau& b, const Wand& w);                      // 2
void bemessungUndFestigkeiten(Berichtsbau& b, const Wand& w);       // 3.1 and 3.2
void tragfaehigkeiten(Berichtsbau& b, const Wand& w);               // 3.3
void beanspruchungen(Berichtsbau& b, const Wand& w);                // 4

void scheibe(Berichtsbau& b, const Wand& w);            // 5.1
void schwellenpressung(Berichtsbau& b, const Wand& w);  // 5.2
void stabilitaet(Berichtsbau& b, const Wand& w);        // 5.3
void laengszug(Berichtsbau& b, const Wand& w);          // 5.4
void biegung(Berichtsbau& b, const Wand& w);            // 5.5
void herausziehen(Berichtsbau& b, const Wand& w);       // 5.6
void verformungen(Berichtsbau& b, const Wand& w);       // 5.7
void lagesicherheit(Berichtsbau& b, const Wand& w);     // 5.8

void randbedingungen(Berichtsbau& b);  // 7

}  // namespace rippenscheibe
