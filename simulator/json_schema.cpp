#include "json_schema.h"

#include "number_text.h"

#include <QRegularExpression>

namespace {

using kind = json_value::kind;

std::string_view kind_name(kind type) {
    switch (type) {
    case kind::null:
        return "null";
    case kind::boolean:
        return "boolean";
    case kind::number:
        return "number";
    case kind::text:
        return "string";
    case kind::list:
        return "array";
    case kind::object:
        return "object";
    }
    return "";
}

bool matches(const std::string& text, const std::string& pattern) {
    const QString whole = QRegularExpression::anchoredPattern(QString::fromStdString(pattern));
    return QRegularExpression(whole).match(QString::fromStdString(text)).hasMatch();
}

class checker {
  public:
    explicit checker(const json_value& root) : root_(root) {}

    // `where`: the value's path, for messages: units[1].stored[0]
    void check(const json_value& value, const json_value& schema, const std::string& where) const {
        if (const json_value* ref = schema.find("$ref"))
            return check(value, definition(ref->text), where);
        check_type(value, schema, where);
        switch (value.type) {
        case kind::number:
            check_number(value, schema, where);
            break;
        case kind::text:
            check_text(value, schema, where);
            break;
        case kind::list:
            check_list(value, schema, where);
            break;
        case kind::object:
            check_object(value, schema, where);
            break;
        case kind::null:
        case kind::boolean:
            break;
        }
    }

  private:
    [[noreturn]] static void fail(const json_value& value, const std::string& where,
                                  const std::string& reason) {
        throw json_error(value.line, (where.empty() ? "the file" : where) + " " + reason);
    }

    const json_value& definition(const std::string& ref) const {
        const std::string name = ref.substr(ref.rfind('/') + 1);
        const json_value* const definitions = root_.find("$defs");
        const json_value* const found = definitions ? definitions->find(name) : nullptr;
        if (!found)
            throw json_error(0, "the schema has no definition " + ref);
        return *found;
    }

    static void check_type(const json_value& value, const json_value& schema,
                           const std::string& where) {
        const json_value* const type = schema.find("type");
        if (!type)
            return;
        const bool whole = type->text == "integer";
        if (kind_name(value.type) != (whole ? "number" : std::string_view(type->text)))
            fail(value, where,
                 "must be of type " + type->text + ", not " + std::string(kind_name(value.type)));
        if (whole &&
            value.number != static_cast<double>(static_cast<long long>(
                                value.number > 1e15 || value.number < -1e15 ? 0 : value.number)))
            fail(value, where, "must be a whole number, not " + number_text(value.number));
    }

    static void check_number(const json_value& value, const json_value& schema,
                             const std::string& where) {
        if (const json_value* lowest = schema.find("minimum");
            lowest && value.number < lowest->number)
            fail(value, where,
                 "is " + number_text(value.number) + ", below the lowest allowed " +
                     number_text(lowest->number));
        if (const json_value* highest = schema.find("maximum");
            highest && value.number > highest->number)
            fail(value, where,
                 "is " + number_text(value.number) + ", above the highest allowed " +
                     number_text(highest->number));
    }

    static void check_text(const json_value& value, const json_value& schema,
                           const std::string& where) {
        if (const json_value* allowed = schema.find("enum")) {
            std::string names;
            for (const json_value& one : allowed->list) {
                if (one.text == value.text)
                    return;
                names += (names.empty() ? "" : ", ") + one.text;
            }
            fail(value, where, "is \"" + value.text + "\", not one of " + names);
        }
        const json_value* const pattern = schema.find("pattern");
        if (pattern && !matches(value.text, pattern->text))
            fail(value, where, "is \"" + value.text + "\", which does not match " + pattern->text);
    }

    void check_list(const json_value& value, const json_value& schema,
                    const std::string& where) const {
        const auto count = static_cast<double>(value.list.size());
        if (const json_value* least = schema.find("minItems"); least && count < least->number)
            fail(value, where, "needs at least " + number_text(least->number) + " items");
        if (const json_value* most = schema.find("maxItems"); most && count > most->number)
            fail(value, where, "has more than " + number_text(most->number) + " items");
        const json_value* const items = schema.find("items");
        for (std::size_t i = 0; items && i < value.list.size(); ++i)
            check(value.list[i], *items, where + "[" + std::to_string(i) + "]");
    }

    void check_object(const json_value& value, const json_value& schema,
                      const std::string& where) const {
        if (const json_value* required = schema.find("required"))
            for (const json_value& name : required->list)
                if (!value.find(name.text))
                    fail(value, where, "lacks \"" + name.text + "\"");
        const json_value* const properties = schema.find("properties");
        const json_value* const others = schema.find("additionalProperties");
        const json_value* const names = schema.find("propertyNames");
        for (const auto& [name, member] : value.object) {
            const std::string there = where.empty() ? name : where + "." + name;
            if (names)
                check_name(name, member, *names, there);
            if (const json_value* known = properties ? properties->find(name) : nullptr)
                check(member, *known, there);
            else if (others && others->type == kind::object)
                check(member, *others, there);
            else if (others)
                fail(member, there, "is not a known name");
        }
    }

    static void check_name(const std::string& name, const json_value& member,
                           const json_value& names, const std::string& where) {
        json_value as_text;
        as_text.type = kind::text;
        as_text.line = member.line;
        as_text.text = name;
        check_text(as_text, names, "the name " + where);
    }

    const json_value& root_;
};

} // namespace

void check_against_schema(const json_value& value, const json_value& schema) {
    checker(schema).check(value, schema, "");
}
