#include "fuel_economy.h"

#include "mac_toolies.h"

#include <cmath>

namespace {

constexpr double KM_A_MILE = 1.609344;
constexpr double LITRES_A_GALLON = 3.78541178;
constexpr double GRAMS_A_SECOND = 7.55987; // in a pound a minute
// Miles a US gallon for each km/h and g/s: 14.7 * 740 g/litre / 3600 s * litres a gallon / km a
// mile.
constexpr double MPG_FACTOR = 7.1073357;

} // namespace

// The order of operations is fixed, so that results agree to the last bit everywhere.
fuel_economy compute_MPG(bool flag, double speed, double maf) {
    const double mpg =
        flag ? (speed * KM_A_MILE) / (GRAMS_A_SECOND * maf) * MPG_FACTOR : MPG_FACTOR * speed / maf;
    return {mpg, mpg * KM_A_MILE / LITRES_A_GALLON};
}

std::string fuel_economy_reply(const mac_toolies& toolies, const fuel_economy& economy) {
    return std::isfinite(economy.mpg) ? toolies.encode_to_OBD(economy.mpg, "E4") : "~";
}
