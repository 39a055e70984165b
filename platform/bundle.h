// The resources that ship with the program: text tables, localised strings, images. One per
// program, owned by the start-up code; tests use a folder of their own.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QTranslator;

class bundle {
  public:
    // `root`: a folder, or ":/kestrom" for the compiled-in resources. `locale`: such as "de_DE";
    // empty: the user's. Texts come from the nearest language, then English.
    explicit bundle(std::string root = ":/kestrom", std::string locale = {});
    ~bundle();

    // The whole text of tables/NAME.TYPE; nothing if there is no such resource.
    std::optional<std::string> resource_text(std::string_view name, std::string_view type) const;
    // The text under `key` of the strings table "Kestrom"; empty if the key is missing.
    std::string localized(std::string_view key) const;
    // The path of images/NAME for an image reader: the .svg of that name, if there is one.
    std::string image_path(std::string_view name) const;

  private:
    std::string root_;
    std::unique_ptr<QTranslator> strings_;
    std::unique_ptr<QTranslator> fallback_;
};
