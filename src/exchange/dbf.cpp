#include "exchange/dbf.h"

#include "exchange/byte_block.h"
#include "platform/code_page_932.h"

namespace exchange {
namespace {

constexpr std::uint8_t dbase_3 = 0x03;              // no memo file
constexpr std::uint8_t driver_932 = 0x13;           // language driver: Japanese Shift-JIS
constexpr std::size_t header_length = 32 + 32 + 1;  // header, one column, end mark
constexpr char header_end = 0x0d, file_end = 0x1a;

// Bytes of the last character of a UTF-8 text that is not empty.
std::size_t last_character(std::string_view text) {
  std::size_t length = 1;
  while (length < text.size() && (static_cast<unsigned char>(text[text.size() - length]) & 0xc0) == 0x80) ++length;
  return length;
}

// The text in code page 932, padded with blanks to the width of the column.
std::string column_text(std::string_view text) {
  std::string bytes = platform::encode_932(text);
  while (bytes.size() > dbf_text_width) {
    text.remove_suffix(last_character(text));
    bytes = platform::encode_932(text);
  }
  bytes.resize(dbf_text_width, ' ');
  return bytes;
}

}  // namespace

std::string dbf_bytes(std::string_view column, std::string_view text, const platform::Date_time& today) {
  std::string block;
  put_byte(block, 0, dbase_3);                                       // version
  put_byte(block, 1, static_cast<std::uint8_t>(today.year - 1900));  // last change: year
  put_byte(block, 2, static_cast<std::uint8_t>(today.month));        //   month
  put_byte(block, 3, static_cast<std::uint8_t>(today.day));          //   day
  put_little_32(block, 4, 1);                                        // number of records
  put_little_16(block, 8, header_length);                            // length of the header
  put_little_16(block, 10, dbf_text_width + 1);                      // length of a record
  put_zeros(block, 12, 17);                                          // unused
  put_byte(block, 29, driver_932);                                   // language driver
  put_zeros(block, 30, 2);                                           // unused
  put_zeros(block, 32, 32);                                          // column, its name ended by a zero
  put_text(block, 32, column.substr(0, 10));                         //   name
  put_text(block, 43, "C");                                          //   type: text
  put_byte(block, 48, static_cast<std::uint8_t>(dbf_text_width));    //   width
  put_byte(block, 64, header_end);                                   // end of the header
  put_text(block, 65, " ");                                          // record: not deleted
  put_text(block, 66, column_text(text));                            //   its text
  put_byte(block, 66 + dbf_text_width, file_end);                    // end of the file
  return block;
}

}  // namespace exchange
