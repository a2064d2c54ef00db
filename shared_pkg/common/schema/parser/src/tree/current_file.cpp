#include "tree/current_file.h"

#include "inv_parser/tree_internal.h"

namespace
{

inv_xml_handle *current_inv_file_instance;
void *chain_list;

}  // namespace

inv_xml_handle *inv::current_file() noexcept
{
    return current_inv_file_instance;
}

inv::xml_instance_chain_entry *inv::xml_instance_chain_list() noexcept
{
    return static_cast<xml_instance_chain_entry *>(chain_list);
}

void parser_set_inv_file_instance(inv_xml_handle *handle)
{
    current_inv_file_instance = handle;
}

void *parser_set_xml_instance_chain_list(void *value)
{
    chain_list = value;
    return value;
}
