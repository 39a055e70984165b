#include "alerts.h"
#include "mac_toolies.h"

void mac_toolies::myMsgBox(std::string_view text) const {
    myMsgBox({}, text, "OK", {});
}

bool mac_toolies::myMsgBox(std::string_view title, std::string_view this_msg,
                           std::string_view cancel_btn_txt, std::string_view other_btn_txt) const {
    alert_request request;
    request.title = title;
    request.message = this_msg;
    request.style = alert_style::warning;
    request.buttons = {std::string(cancel_btn_txt)};
    if (!other_btn_txt.empty())
        request.buttons.emplace_back(other_btn_txt);
    return doors_.message_boxes->show(request) == 0;
}
