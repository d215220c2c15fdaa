// t_string
