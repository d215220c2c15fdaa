// safe_save
