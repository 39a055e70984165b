// Fuel economy from the speed and the air flow: a petrol engine burns 14.7 parts of air with one
// part of petrol, by weight; petrol is taken as 740 g/litre.
#pragma once

#include <string>

class mac_toolies;

struct fuel_economy {
    double mpg; // miles per US gallon
    double kpl; // kilometres per litre
};

// Speed in km/h and air flow in g/s with the flag clear; mph and lb/min with the flag set. Without
// air flow the result is infinite, and NaN if there is no speed either.
fuel_economy compute_MPG(bool flag, double speed, double maf);

// The economy as reply text of pseudo-PID E4; "~" when there is none: no air flow, as with the
// engine off, or a missing reading (NaN).
std::string fuel_economy_reply(const mac_toolies& toolies, const fuel_economy& economy);
