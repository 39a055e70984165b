// Toolkits over the shipped tables: one in imperial units, one in metric.
#pragma once

#include "bundle.h"
#include "constantes.h"
#include "mac_toolies.h"
#include "user_defaults.h"

struct fuzz_toolkit {
    explicit fuzz_toolkit(bool metric, const std::string& root = ":/kestrom")
        : resources(root, "en") {
        settings.set_boolean(KS_METRIC_UNITS_KEY, metric);
    }

    bundle resources;
    user_defaults settings{"/nonexistent/settings.conf"}; // never written
    mac_toolies decoder{{&resources, &settings, nullptr, nullptr}};
};
