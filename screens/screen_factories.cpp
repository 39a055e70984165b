#include "screen_factories.h"

#include "actions.h"
#include "expertCtrlr.h"
#include "prefs.h"
#include "readCodes.h"
#include "report_screen.h"

namespace {

template <class screen>
std::unique_ptr<screen_controller> make(Ks_lite_delegate& delegate) {
    return std::make_unique<screen>(delegate);
}

} // namespace

screen_factories all_screens() {
    return {
        {READ_CODES_VIEW, make<readCodes>}, {ACTIONS_VIEW, make<actions>},
        {PREFS_VIEW, make<prefs>},          {EXPERT_VIEW, make<expertCtrlr>},
        {REPORT_VIEW, make<report_screen>},
    };
}
