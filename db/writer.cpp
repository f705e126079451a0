#include "db/writer.h"

#include <cmath>
#include <span>

namespace db {

std::string& LineWriter::next() {
  if (!first_) out_ += ',';
  first_ = false;
  return out_;
}

LineWriter& LineWriter::number(double value) {
  append_number(next(), value);
  return *this;
}

LineWriter& LineWriter::text(std::string_view value) {
  next();
  // Between quotes a quote of its own would end it, and a reader takes no longer field than kLongestField; bare, as it must
  // have been read, it reads the same again.
  const bool fits = value.size() <= kLongestText;
  const std::string_view quote = fits && value.find('"') == std::string_view::npos ? "\"" : "";
  if (quote.empty() && out_.empty() && value.starts_with(kByteOrderMark)) out_ += kByteOrderMark;  // which is passed over
  out_.append(quote).append(value).append(quote);
  return *this;
}

LineWriter& LineWriter::field(const Field& field) {
  if (field.quoted) return text(field.text);
  if (!field.text.empty() && !is_formatted(field.text)) {
    const auto value = parse_number(field.text);
    if (!value) return text(field.text);
    if (std::abs(*value) < kTooLarge) return number(*value);
  }
  next() += field.text;
  return *this;
}

namespace {

// The place in the file where these fields stand in a row just as a LineWriter would write them; nothing when they do not.
std::string_view as_written(std::span<const Field> fields) {
  const auto begin_of = [](const Field& field) { return field.text.data() - (field.quoted ? 1 : 0); };
  const char* const begin = begin_of(fields.front());
  const char* at = begin;
  for (const Field& field : fields) {
    if (at != begin && *at++ != ',') return {};
    if (at != begin_of(field)) return {};
    if (!field.quoted && !field.text.empty() && !is_formatted(field.text)) return {};
    at = field.text.data() + field.text.size() + (field.quoted ? 1 : 0);
  }
  return {begin, static_cast<std::size_t>(at - begin)};
}

void append_line(std::string& out, std::span<const Field> fields) {
  if (fields.empty()) return;
  if (const auto line = as_written(fields); !line.empty()) {
    out += line;
    out += kLineEnd;
    return;
  }
  LineWriter line(out);
  for (const Field& field : fields) line.field(field);
  line.end();
}

}  // namespace

void append_record(std::string& out, const Record& record) {
  append_line(out, record.head);
  append_line(out, record.pairs);
  if (!record.has_mb) return;
  append_line(out, std::span(&record.mb_count, 1));
  append_line(out, record.mb_pairs);
}

void append_leading(std::string& out, const LeadingFields& fields) {
  if (fields.model && fields.model_is_empty)
    LineWriter(out).field({}).end();
  else if (fields.model)
    LineWriter(out).text(*fields.model).end();
  if (!fields.blm) return;
  LineWriter(out).text(fields.blm->description).end();
  LineWriter(out).text(fields.blm->label).number(fields.blm->critical_f).end();
}

}  // namespace db
