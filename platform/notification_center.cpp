#include "notification_center.h"

#include <algorithm>
#include <utility>

notification_center::observer_id notification_center::add_observer(std::string_view name,
                                                                   handler call) {
    observers_.push_back({++last_id_, std::string(name), std::move(call)});
    return last_id_;
}

void notification_center::remove_observer(observer_id id) {
    std::erase_if(observers_, [id](const observer& o) { return o.id == id; });
}

void notification_center::post(std::string_view name, const std::string& object) {
    // A handler may add or remove observers: walk by id, not by iterator.
    std::vector<observer_id> ids;
    for (const observer& o : observers_)
        if (o.name == name)
            ids.push_back(o.id);
    for (const observer_id id : ids) {
        const auto found =
            std::ranges::find_if(observers_, [id](const observer& o) { return o.id == id; });
        if (found == observers_.end())
            continue;
        const handler call = found->call;
        call(object);
    }
}
