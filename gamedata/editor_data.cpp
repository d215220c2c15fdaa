// editor_data
