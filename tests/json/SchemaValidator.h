#pragma once

#include "json/ProjectJson.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>
#include <vector>

namespace vorlane::testsupport {

// Checks JSON values against a JSON Schema (draft 2020-12), as far as the keywords go that
// docs/project.schema.json uses: type, const, properties, required, additionalProperties,
// items, minItems, maxItems, minimum, maximum, pattern, not, if/then/else, $ref to "#/$defs/..."
// and boolean schemas. Any other keyword fails the test, so that none is passed over unseen.
class SchemaValidator
{
public:
    explicit SchemaValidator(Json schema)
        : m_root(std::move(schema))
    {}

    // The places where `value` breaks the schema, as "POINTER: keyword"; empty when it holds.
    std::vector<std::string> errors(const Json &value) const
    {
        std::vector<std::string> found;
        check(m_root, value, "", found);
        return found;
    }

private:
    bool holds(const Json &schema, const Json &value) const
    {
        std::vector<std::string> found;
        check(schema, value, "", found);
        return found.empty();
    }

    static bool hasType(const Json &value, const std::string &type)
    {
        if (type == "object")
            return value.is_object();
        if (type == "array")
            return value.is_array();
        if (type == "string")
            return value.is_string();
        if (type == "integer")
            return value.is_number_integer();
        if (type == "number")
            return value.is_number();
        if (type == "boolean")
            return value.is_boolean();
        if (type == "null")
            return value.is_null();
        ADD_FAILURE() << "unknown type " << type;
        return false;
    }

    static double number(const Json &value) { return value.get<double>(); }

    void check(const Json &schema,
               const Json &value,
               const std::string &at,
               std::vector<std::string> &found) const
    {
        if (schema.is_boolean()) {
            if (!schema.get<bool>())
                found.push_back(at + ": false");
            return;
        }
        static const std::set<std::string> known{
            "$schema", "$id",      "title",      "description", "$defs",
            "type",    "const",    "properties", "required",    "additionalProperties",
            "items",   "minItems", "maxItems",   "minimum",     "maximum",
            "pattern", "not",      "if",         "then",        "else",
            "$ref"};
        for (auto it = schema.begin(); it != schema.end(); ++it)
            if (!known.count(it.key()))
                ADD_FAILURE() << "the validator does not know the keyword " << it.key();

        const auto fail = [&](const std::string &keyword) {
            found.push_back(at + ": " + keyword);
        };
        if (schema.contains("$ref")) {
            const std::string ref = schema["$ref"];
            const std::string prefix = "#/$defs/";
            EXPECT_EQ(ref.rfind(prefix, 0), 0u) << ref;
            check(m_root["$defs"][ref.substr(prefix.size())], value, at, found);
        }
        if (schema.contains("type") && !hasType(value, schema["type"]))
            return fail("type");
        if (schema.contains("const") && value != schema["const"])
            fail("const");
        if (value.is_object()) {
            const Json &properties =
                schema.contains("properties") ? schema["properties"] : Json::object();
            for (auto it = value.begin(); it != value.end(); ++it) {
                const std::string place = at + "/" + it.key();
                if (properties.contains(it.key()))
                    check(properties[it.key()], it.value(), place, found);
                else if (schema.contains("additionalProperties"))
                    check(schema["additionalProperties"], it.value(), place, found);
            }
            if (schema.contains("required"))
                for (const Json &name : schema["required"])
                    if (!value.contains(name.get<std::string>()))
                        fail("required " + name.get<std::string>());
        }
        if (value.is_array()) {
            if (schema.contains("minItems") && value.size() < schema["minItems"].get<size_t>())
                fail("minItems");
            if (schema.contains("maxItems") && value.size() > schema["maxItems"].get<size_t>())
                fail("maxItems");
            if (schema.contains("items"))
                for (size_t i = 0; i < value.size(); ++i)
                    check(schema["items"], value[i], at + "/" + std::to_string(i), found);
        }
        if (value.is_number()) {
            if (schema.contains("minimum") && number(value) < number(schema["minimum"]))
                fail("minimum");
            if (schema.contains("maximum") && number(value) > number(schema["maximum"]))
                fail("maximum");
        }
        if (value.is_string() && schema.contains("pattern")) {
            const std::regex pattern(schema["pattern"].get<std::string>(), std::regex::ECMAScript);
            if (!std::regex_search(value.get<std::string>(), pattern))
                fail("pattern");
        }
        if (schema.contains("not") && holds(schema["not"], value))
            fail("not");
        if (schema.contains("if")) {
            if (holds(schema["if"], value)) {
                if (schema.contains("then"))
                    check(schema["then"], value, at, found);
            } else if (schema.contains("else")) {
                check(schema["else"], value, at, found);
            }
        }
    }

    Json m_root;
};

} // namespace vorlane::testsupport
