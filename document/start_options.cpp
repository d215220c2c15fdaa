// start_options
