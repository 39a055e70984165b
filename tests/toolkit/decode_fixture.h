// A toolkit with settings and tables of the test's own.
#pragma once

#include "constantes.h"
#include "toolkit_fixture.h"
#include "user_defaults.h"

class decode_test : public toolkit_test {
  protected:
    void use_metric(bool metric) { settings.set_boolean(KS_METRIC_UNITS_KEY, metric); }

    user_defaults settings{root() + "/settings.conf"};
    mac_toolies decoder{{&resources, &settings, &boxes, &notifications}};
};
