// game_tables
