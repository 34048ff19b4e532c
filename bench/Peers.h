#pragma once

#include "Model.h"

#include <json/value.h>
#include <nlohmann/json.hpp>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

/// The same conversions as an experienced user of other libraries would write them by hand, with the same text.
namespace Bench
{

using RapidWriter = rapidjson::Writer<rapidjson::StringBuffer>;

void Write(RapidWriter& writer, const MediaInput& channel);
void Write(RapidWriter& writer, const MediaOutput& channel);
void Write(RapidWriter& writer, const Node& node);

nlohmann::ordered_json ToNlohmann(const MediaInput& channel);
Json::Value ToJsoncpp(const MediaInput& channel);

/// One plain look-up of each member.
void Read(const Json::Value& json, MediaInput& channel);
void Read(const Json::Value& json, MediaOutput& channel);
void Read(const Json::Value& json, Node& node);
void Read(const rapidjson::Value& json, MediaInput& channel);
void Read(const rapidjson::Value& json, MediaOutput& channel);
void Read(const rapidjson::Value& json, Node& node);
/// With nlohmann's from_json.
void Read(const nlohmann::json& json, MediaInput& channel);
void Read(const nlohmann::json& json, MediaOutput& channel);
void Read(const nlohmann::json& json, Node& node);

} // namespace Bench
