# Who made the library, for its identity records: written to <build>/include/arbor_identity_texts.h as texts
# that may stand in an XML attribute.
set(ARBOR_COMPANY_NAME "The arbor developers" CACHE STRING "Company name in the library's identity records")
set(ARBOR_COPYRIGHT "Copyright (C) The arbor developers" CACHE STRING "Copyright in the library's identity records")

function(arbor_xml_text text result)
  string(REPLACE "&" "&amp;" text "${text}")
  string(REPLACE "<" "&lt;" text "${text}")
  string(REPLACE ">" "&gt;" text "${text}")
  string(REPLACE "\"" "&quot;" text "${text}")
  string(REPLACE "\n" "&#10;" text "${text}")
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

arbor_xml_text("${ARBOR_COMPANY_NAME}" company_name)
arbor_xml_text("${ARBOR_COPYRIGHT}" copyright)
configure_file(${CMAKE_CURRENT_LIST_DIR}/arbor_identity_texts.h.in
  ${PROJECT_BINARY_DIR}/include/arbor_identity_texts.h @ONLY)
