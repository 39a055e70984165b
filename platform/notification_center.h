// Named notifications, delivered synchronously to their observers in order of registration. Owned
// by the start-up code; the adapter link is its main user ("OBDevent").
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

inline constexpr char OBD_EVENT[] = "OBDevent";

class notification_center {
  public:
    using observer_id = std::uint64_t;
    using handler = std::function<void(const std::string& object)>;

    observer_id add_observer(std::string_view name, handler call);
    void remove_observer(observer_id id);
    void post(std::string_view name, const std::string& object);

  private:
    struct observer {
        observer_id id;
        std::string name;
        handler call;
    };
    std::vector<observer> observers_;
    observer_id last_id_ = 0;
};
