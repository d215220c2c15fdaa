// map_header
