// building_tables
