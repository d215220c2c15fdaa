// ini_file
