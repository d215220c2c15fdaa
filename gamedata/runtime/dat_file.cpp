// dat_file
