// What the program ships with: text tables, localised strings, images. One per program, owned by
// the start-up code; tests point one at a folder of their own.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QTranslator;

class bundle {
  public:
    // `root`: a folder, or ":/kestrom" for what is compiled in. `locale`: such as "de_DE"; empty:
    // the user's. Texts come from the nearest language, then English.
    explicit bundle(std::string root = ":/kestrom", std::string locale = {});
    ~bundle();

    // The whole text of tables/NAME.TYPE as it stands; nothing when there is no such resource.
    std::optional<std::string> resource_text(std::string_view name, std::string_view type) const;
    // The text under `key` of the strings table "Kestrom"; empty when the key is missing.
    std::string localized(std::string_view key) const;
    // Where images/NAME lies, for an image reader; with an .svg beside the .gif of that name, the
    // drawing.
    std::string image_path(std::string_view name) const;

  private:
    std::string root_;
    std::unique_ptr<QTranslator> strings_;
    std::unique_ptr<QTranslator> fallback_;
};
